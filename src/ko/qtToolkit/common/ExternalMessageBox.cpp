#include <ko/qtToolkit/common/ExternalMessageBox.h>

namespace ko::qtToolkit::common {

ExternalMessageBox::ExternalMessageBox() = default;

// Defined here so that the interface's type information lives in the library.
ExternalMessageBox::~ExternalMessageBox() = default;

} // namespace ko::qtToolkit::common
