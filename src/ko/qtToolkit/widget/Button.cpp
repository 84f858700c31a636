// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Button.h>

namespace ko::qtToolkit::widget {

Button::Button(QWidget *parent)
    : Button(QIcon(), QString(), parent)
{
}

Button::Button(const QString &text, QWidget *parent)
    : Button(QIcon(), text, parent)
{
}

Button::Button(const QIcon &icon, const QString &text, QWidget *parent)
    : QPushButton(icon, text, parent)
{
    setFocusPolicy(Qt::NoFocus);
}

Button::~Button() = default;

} // namespace ko::qtToolkit::widget
