// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/singleton/ExternalMessageBox.h>

#include <ko/qtToolkit/common/ExternalMessageBox.h>

namespace ko::qtToolkit::singleton {

class ExternalMessageBoxPrivate
{
public:
    const common::ExternalMessageBox *implementation = nullptr;
};

ExternalMessageBox::ExternalMessageBox()
    : d(std::make_unique<ExternalMessageBoxPrivate>())
{
}

ExternalMessageBox::~ExternalMessageBox() = default;

ExternalMessageBox *ExternalMessageBox::instance()
{
    static auto *const instance = new ExternalMessageBox;
    return instance;
}

void ExternalMessageBox::setImplementation(const common::ExternalMessageBox *implementation)
{
    d->implementation = implementation;
}

const common::ExternalMessageBox *ExternalMessageBox::implementation() const
{
    return d->implementation;
}

int ExternalMessageBox::confirm(QWidget &source, const QString &title, const QString &message,
                                QMessageBox::Icon icon) const
{
    return d->implementation ? d->implementation->confirm(source, title, message, icon) : 0;
}

int ExternalMessageBox::information(QWidget &source, const QString &title, const QString &message,
                                    QMessageBox::Icon icon) const
{
    return d->implementation ? d->implementation->information(source, title, message, icon) : 0;
}

} // namespace ko::qtToolkit::singleton
