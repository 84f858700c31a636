#include <ko/qtToolkit/widget/ElidedButton.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace ko::qtToolkit::widget {

void ElidedButton::updateElidedText()
{
    if (width() == m_cachedWidth && text() == m_sourceText)
        return;
    m_cachedWidth = width();
    m_sourceText = text();

    QStyleOptionButton option;
    option.initFrom(this);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    m_elidedText = QFontMetrics(font()).elidedText(m_sourceText, Qt::ElideRight,
                                                   contents.width() - iconSize().width() - 4, Qt::TextShowMnemonic);
}

bool ElidedButton::event(QEvent *e)
{
    if (e->type() == QEvent::Show || e->type() == QEvent::Paint)
        updateElidedText();
    return QPushButton::event(e);
}

void ElidedButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyle *style = this->style();

    // The body without a label: the option has no icon and a null text.
    QStyleOptionButton option;
    option.initFrom(this);
    style->drawControl(QStyle::CE_PushButton, &option, &painter, this);

    // The label: the shortened caption inside the contents, 2 pixels in from either side.
    initStyleOption(&option);
    const QRect contents = style->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    option.text = m_elidedText;
    option.rect = contents.adjusted(2, 0, -2, 0);
    style->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
}

} // namespace ko::qtToolkit::widget
