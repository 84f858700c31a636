#include <ko/qtToolkit/singleton/ExternalMessageBox.h>

#include <ko/qtToolkit/common/ExternalMessageBox.h>

namespace ko::qtToolkit::singleton {

ExternalMessageBox::ExternalMessageBox() = default;

ExternalMessageBox *ExternalMessageBox::instance()
{
    static auto *const instance = new ExternalMessageBox;
    return instance;
}

void ExternalMessageBox::setImplementation(const common::ExternalMessageBox *implementation)
{
    m_implementation = implementation;
}

const common::ExternalMessageBox *ExternalMessageBox::implementation() const
{
    return m_implementation;
}

int ExternalMessageBox::confirm(QWidget &source, const QString &title, const QString &message,
                                QMessageBox::Icon icon) const
{
    return m_implementation ? m_implementation->confirm(source, title, message, icon) : 0;
}

int ExternalMessageBox::information(QWidget &source, const QString &title, const QString &message,
                                    QMessageBox::Icon icon) const
{
    return m_implementation ? m_implementation->information(source, title, message, icon) : 0;
}

} // namespace ko::qtToolkit::singleton
