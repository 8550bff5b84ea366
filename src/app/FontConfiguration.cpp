#include "app/FontConfiguration.h"

#include <fontconfig/fontconfig.h>

namespace aerolith {

FontConfiguration::FontConfiguration() : m_reader([] { FcInit(); }) {}

FontConfiguration::~FontConfiguration()
{
    m_reader.join();
}

} // namespace aerolith
