// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/common/ExternalMessageBox.h>

namespace ko::qtToolkit::common {

ExternalMessageBox::ExternalMessageBox() = default;

// Defined here so that the interface's type information lives in the library.
ExternalMessageBox::~ExternalMessageBox() = default;

} // namespace ko::qtToolkit::common
