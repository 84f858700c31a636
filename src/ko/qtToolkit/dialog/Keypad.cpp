// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/dialog/Keypad.h>

#include <ko/qtToolkit/behavior/Draggable.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <QVBoxLayout>
#include <QVariant>

namespace ko::qtToolkit::dialog {

class KeypadPrivate : public QObject
{
public:
    explicit KeypadPrivate(Keypad *dialog);

    void updateDynamicWidget();

    Keypad *const q;
    behavior::Draggable draggable;
    widget::Keypad *const keypad;
    widget::Button *const closeButton;
};

KeypadPrivate::KeypadPrivate(Keypad *dialog)
    : q(dialog)
    , draggable(*dialog)
    , keypad(new widget::Keypad(dialog))
    , closeButton(new widget::Button(dialog))
{
    draggable.setConstrained(true);
    closeButton->setProperty("class", QStringLiteral("close"));
}

void KeypadPrivate::updateDynamicWidget()
{
    if (widget::TextEntry *entry = keypad->dynamicWidget())
        entry->setText(keypad->text());
}

Keypad::Keypad()
    : QDialog(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , d(std::make_unique<KeypadPrivate>(this))
{
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(d->keypad);

    connect(d->keypad, &widget::Keypad::accepted, this, &QDialog::accept);
    connect(d->keypad, &widget::Keypad::rejected, this, &QDialog::reject);
    connect(d->closeButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(d->keypad, &widget::Keypad::valueUpdated, d.get(), &KeypadPrivate::updateDynamicWidget);
}

Keypad::~Keypad() = default;

void Keypad::setText(const QString &text)
{
    d->keypad->setText(text);
}

QString Keypad::text() const
{
    return d->keypad->text();
}

void Keypad::setDynamicWidget(widget::TextEntry *entry)
{
    d->keypad->setDynamicWidget(entry);
}

widget::TextEntry *Keypad::dynamicWidget() const
{
    return d->keypad->dynamicWidget();
}

void Keypad::setReplaceOnFirstKey(bool replace)
{
    d->keypad->setReplaceOnFirstKey(replace);
}

bool Keypad::replaceOnFirstKey() const
{
    return d->keypad->replaceOnFirstKey();
}

void Keypad::setMinimumData(float minimum)
{
    d->keypad->setMinimumData(minimum);
}

void Keypad::setMaximumData(float maximum)
{
    d->keypad->setMaximumData(maximum);
}

void Keypad::setNumberOfDecimals(unsigned int decimals)
{
    d->keypad->setNumberOfDecimals(decimals);
}

void Keypad::setConstrainedRect(const QRect &rect)
{
    d->draggable.setConstrainedRect(rect);
}

QRect Keypad::constrainedRect() const
{
    return d->draggable.constrainedRect();
}

void Keypad::setConstrainedOffset(const QPoint &offset)
{
    d->draggable.setConstrainedOffset(offset);
}

QPoint Keypad::constrainedOffset() const
{
    return d->draggable.constrainedOffset();
}

void Keypad::resizeEvent(QResizeEvent *event)
{
    d->closeButton->move(width() - 30, height() - 30);
    QDialog::resizeEvent(event);
}

} // namespace ko::qtToolkit::dialog
