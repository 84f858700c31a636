// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedText.h>

#include <QFontMetrics>
#include <QWidget>

namespace ko::qtToolkit::widget {

QString elidedText(const QString &text, const QWidget &widget, int margin, EllipsisMode mode,
                   const QString &replacement)
{
    const QString elided = QFontMetrics(widget.font()).elidedText(text, Qt::ElideRight, widget.width() - margin, 0);
    if (elided == text)
        return text;
    return mode != EllipsisMode::Elide ? replacement : elided;
}

} // namespace ko::qtToolkit::widget
