// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedLabel.h>

#include <ko/qtToolkit/widget/FullTextToolTip_p.h>

#include <QFontMetrics>

namespace ko::qtToolkit::widget {

class ElidedLabelPrivate
{
public:
    explicit ElidedLabelPrivate(QWidget &label)
        : toolTip(label)
    {
    }

    Qt::TextElideMode elideMode = Qt::ElideRight;
    QString elidedText;
    QString sourceText; // null while elidedText is out of date
    FullTextToolTip toolTip;
};

ElidedLabel::ElidedLabel(QWidget *parent, Qt::WindowFlags f)
    : QLabel(parent, f)
    , d(std::make_unique<ElidedLabelPrivate>(*this))
{
}

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent, Qt::WindowFlags f)
    : QLabel(text, parent, f)
    , d(std::make_unique<ElidedLabelPrivate>(*this))
{
}

ElidedLabel::~ElidedLabel() = default;

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    // Also for the current mode: the next paint computes the shortened text and the minimum
    // width afresh.
    d->elideMode = mode;
    d->sourceText = QString();
    // Without elision nothing is cut and updateCache() is not called on paint.
    if (mode == Qt::ElideNone)
        d->toolTip.update(false, text());
    update();
}

Qt::TextElideMode ElidedLabel::elideMode() const
{
    return d->elideMode;
}

void ElidedLabel::updateCache()
{
    // A null source marks the cache invalid; an empty text compares equal to it otherwise.
    if (!d->sourceText.isNull() && text() == d->sourceText)
        return;
    d->sourceText = text();

    const QFontMetrics metrics(font());
    // 4 pixels of inner allowance keep the last glyph off the label's edge.
    d->elidedText = metrics.elidedText(d->sourceText, d->elideMode, width() - 4, Qt::TextShowMnemonic);
    d->toolTip.update(d->elideMode != Qt::ElideNone && d->elidedText != d->sourceText, d->sourceText);
    if (d->sourceText.isEmpty())
        return;

    // The label may shrink to its first character and an ellipsis. The ellipsis is measured as
    // the three bytes of its UTF-8 form taken one byte a character, which usually leaves a little
    // more room than the ellipsis glyph needs.
    const QString shortest = d->sourceText.left(1) + QChar(0x00E2) + QChar(0x0080) + QChar(0x00A6);
    setMinimumWidth(metrics.horizontalAdvance(shortest) + 1);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (d->elideMode == Qt::ElideNone) {
        QLabel::paintEvent(event);
        return;
    }
    updateCache();
    // QLabel paints its own text: show the shortened one for the length of this paint. Each
    // setText() asks for a repaint, which during a paint would come back as the next paint,
    // forever; updates are held off while the text is swapped.
    const bool updatesWereDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled, true);
    const QString fullText = d->sourceText;
    setText(d->elidedText);
    QLabel::paintEvent(event);
    setText(fullText);
    setAttribute(Qt::WA_UpdatesDisabled, updatesWereDisabled);
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    d->sourceText = QString();
}

} // namespace ko::qtToolkit::widget
