#include "host/fontsahead.h"

#include <clocale>
#include <system_error>

#include <fontconfig/fontconfig.h>

namespace host {

FontsAhead::FontsAhead()
{
    // The toolkit sets it too, which must not change how the thread reads numbers.
    std::setlocale(LC_ALL, "");
    try {
        m_reader = std::jthread([] { FcInit(); });
    } catch (const std::system_error &) {
        return; // the toolkit reads it when it needs the first font
    }
}

void FontsAhead::wait()
{
    if (m_reader.joinable())
        m_reader.join();
}

} // namespace host
