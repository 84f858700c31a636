#include <ko/qtToolkit/qtToolkit.h>

namespace ko::qtToolkit {

namespace {
constexpr unsigned int interfaceVersion = 101;
}

std::string getVersion()
{
    return {};
}

unsigned int getInterfaceVersion()
{
    return interfaceVersion;
}

bool isCompatibleWithInterfaceVersion(unsigned int version)
{
    return version == interfaceVersion;
}

} // namespace ko::qtToolkit
