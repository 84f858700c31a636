#include <ko/qtToolkit/widget/ElidedLabel.h>

#include <QFontMetrics>

namespace ko::qtToolkit::widget {

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    // Also for the current mode: the next paint computes the shortened text and the minimum
    // width afresh.
    m_elideMode = mode;
    m_sourceText = QString();
    update();
}

Qt::TextElideMode ElidedLabel::elideMode() const
{
    return m_elideMode;
}

void ElidedLabel::updateCache()
{
    // A null source marks the cache invalid; an empty text compares equal to it otherwise.
    if (!m_sourceText.isNull() && text() == m_sourceText)
        return;
    m_sourceText = text();

    const QFontMetrics metrics(font());
    // 4 pixels of inner allowance keep the last glyph off the label's edge.
    m_elidedText = metrics.elidedText(m_sourceText, m_elideMode, width() - 4, Qt::TextShowMnemonic);
    if (m_sourceText.isEmpty())
        return;

    // The label may shrink to its first character and an ellipsis. The ellipsis is measured as
    // the three bytes of its UTF-8 form taken one byte a character, which usually leaves a little
    // more room than the ellipsis glyph needs.
    const QString shortest = m_sourceText.left(1) + QChar(0x00E2) + QChar(0x0080) + QChar(0x00A6);
    setMinimumWidth(metrics.horizontalAdvance(shortest) + 1);
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (m_elideMode == Qt::ElideNone) {
        QLabel::paintEvent(event);
        return;
    }
    updateCache();
    // QLabel paints its own text: show the shortened one for the length of this paint. Each
    // setText() asks for a repaint, which during a paint would come back as the next paint,
    // forever; updates are held off while the text is swapped.
    const bool updatesWereDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled, true);
    const QString fullText = m_sourceText;
    setText(m_elidedText);
    QLabel::paintEvent(event);
    setText(fullText);
    setAttribute(Qt::WA_UpdatesDisabled, updatesWereDisabled);
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    m_sourceText = QString();
}

} // namespace ko::qtToolkit::widget
