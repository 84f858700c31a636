// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_ELIDEDTEXT_H
#define KO_QTTOOLKIT_WIDGET_ELIDEDTEXT_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QString>

class QWidget;

namespace ko::qtToolkit::widget {

/**
 * \brief What elidedText() returns for a text that does not fit.
 */
enum class EllipsisMode {
    Elide = 0,  ///< the text cut at the right, ending in an ellipsis
    Replace = 1 ///< the caller's replacement instead of any part of the text
};

/**
 * \brief Shortens \a text to the width of \a widget, or replaces it.
 *
 * The text is measured with the widget's own font (QFontMetrics of QWidget::font()) against
 * <tt>widget.width() - margin</tt>, and cut at the right when it is too wide. A text that fits
 * is returned unchanged whatever \a mode says. A margin as large as the widget's width lets no
 * text fit, except a single character, which Qt never shortens.
 * \param text the text to fit.
 * \param widget the widget whose font and width count; not kept.
 * \param margin the pixels of the width the text may not use.
 * \param mode EllipsisMode::Elide returns the shortened text; any other value returns
 *        \a replacement instead
 * \param replacement what EllipsisMode::Replace returns for a text that does not fit.
 */
KO_QTTOOLKIT_EXPORT QString elidedText(const QString &text, const QWidget &widget, int margin, EllipsisMode mode,
                                       const QString &replacement);

} // namespace ko::qtToolkit::widget

#endif
