// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

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
