// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ElidedButton.h>

#include <ko/qtToolkit/widget/FullTextToolTip_p.h>

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace ko::qtToolkit::widget {

class ElidedButtonPrivate
{
public:
    explicit ElidedButtonPrivate(QWidget &button)
        : toolTip(button)
    {
    }

    int cachedWidth = -1;
    QString sourceText;
    QString elidedText;
    FullTextToolTip toolTip;
};

ElidedButton::ElidedButton(QWidget *parent)
    : Button(parent)
    , d(std::make_unique<ElidedButtonPrivate>(*this))
{
}

ElidedButton::ElidedButton(const QString &text, QWidget *parent)
    : Button(text, parent)
    , d(std::make_unique<ElidedButtonPrivate>(*this))
{
}

ElidedButton::ElidedButton(const QIcon &icon, const QString &text, QWidget *parent)
    : Button(icon, text, parent)
    , d(std::make_unique<ElidedButtonPrivate>(*this))
{
}

ElidedButton::~ElidedButton() = default;

void ElidedButton::updateElidedText()
{
    if (width() == d->cachedWidth && text() == d->sourceText)
        return;
    d->cachedWidth = width();
    d->sourceText = text();

    QStyleOptionButton option;
    option.initFrom(this);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    d->elidedText = QFontMetrics(font()).elidedText(d->sourceText, Qt::ElideRight,
                                                   contents.width() - iconSize().width() - 4, Qt::TextShowMnemonic);
    d->toolTip.update(d->elidedText != d->sourceText, d->sourceText);
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
    option.text = d->elidedText;
    option.rect = contents.adjusted(2, 0, -2, 0);
    style->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
}

} // namespace ko::qtToolkit::widget
