# A release ends where its memory would be misused, and its tables can't be written once it runs. For the debug builds
# the sanitizers do more.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    return()
endif()

# At an address that differs from start to start.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(hardening -fstack-protector-strong -fstack-clash-protection -D_GLIBCXX_ASSERTIONS)
# Of this processor family alone.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection has_control_flow_protection)
if(has_control_flow_protection)
    list(APPEND hardening -fcf-protection)
endif()
list(JOIN hardening " " hardening)

# A distribution builds with no kind at all and flags of its own: these go ahead of them.
string(PREPEND CMAKE_CXX_FLAGS "${hardening} ")
string(PREPEND CMAKE_EXE_LINKER_FLAGS "-Wl,-z,relro -Wl,-z,now ")
# It needs an optimizing compiler, so that a build without a kind has it by the flags that it brings.
foreach(kind RELEASE RELWITHDEBINFO MINSIZEREL)
    string(APPEND CMAKE_CXX_FLAGS_${kind} " -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2")
endforeach()
