// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_BUTTON_H
#define KO_QTTOOLKIT_WIDGET_BUTTON_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QPushButton>

namespace ko::qtToolkit::widget {

/**
 * \brief A push button for touch screens: it never takes keyboard focus.
 *
 * Touching a button must not pull the focus away from the entry the user is editing, and the
 * Tab key skips it. Apart from its focus policy (Qt::NoFocus) it is a plain QPushButton.
 */
class KO_QTTOOLKIT_EXPORT Button : public QPushButton
{
public:
    /**
     * \brief A button without icon and text.
     * \param parent the owner of the button, or null
     */
    explicit Button(QWidget *parent = nullptr);

    /**
     * \brief A button captioned \a text.
     * \param text the caption.
     * \param parent the owner of the button, or null
     */
    explicit Button(const QString &text, QWidget *parent = nullptr);

    /**
     * \brief A button showing \a icon and \a text.
     * \param icon the icon, left of the caption.
     * \param text the caption.
     * \param parent the owner of the button, or null
     */
    Button(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

    ~Button() override;
};

} // namespace ko::qtToolkit::widget

#endif
