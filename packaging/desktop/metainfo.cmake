# Makes the description for shops of programs, OUT, of what stands beside this. Where the environment names a
# ZEMBROLIX_HOMEPAGE, that stands in it, with the pictures that lie below pictures/ there; else neither: such a
# description takes no pictures but those of an address.
set(ZEMBROLIX_HOMEPAGE "$ENV{ZEMBROLIX_HOMEPAGE}")
set(HOMEPAGE "")
set(PICTURES "")
if(ZEMBROLIX_HOMEPAGE)
    set(HOMEPAGE "  <url type=\"homepage\">${ZEMBROLIX_HOMEPAGE}</url>\n")
    file(READ ${CMAKE_CURRENT_LIST_DIR}/pictures.xml.in PICTURES)
    string(CONFIGURE "${PICTURES}" PICTURES @ONLY)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/zembrolix.metainfo.xml.in ${OUT} @ONLY)
