// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/singleton/Keypad.h>

namespace ko::qtToolkit::singleton {

class KeypadPrivate
{
public:
    dialog::Keypad keypad;
};

Keypad::Keypad()
    : d(std::make_unique<KeypadPrivate>())
{
}

Keypad::~Keypad() = default;

Keypad *Keypad::instance()
{
    static auto *const instance = new Keypad;
    return instance;
}

int Keypad::exec()
{
    return d->keypad.exec();
}

void Keypad::setText(const QString &text)
{
    d->keypad.setText(text);
}

QString Keypad::text() const
{
    return d->keypad.text();
}

void Keypad::setDynamicWidget(widget::TextEntry *entry)
{
    d->keypad.setDynamicWidget(entry);
}

widget::TextEntry *Keypad::dynamicWidget() const
{
    return d->keypad.dynamicWidget();
}

void Keypad::setReplaceOnFirstKey(bool replace)
{
    d->keypad.setReplaceOnFirstKey(replace);
}

bool Keypad::replaceOnFirstKey() const
{
    return d->keypad.replaceOnFirstKey();
}

void Keypad::setConstrainedRect(const QRect &rect)
{
    d->keypad.setConstrainedRect(rect);
}

QRect Keypad::constrainedRect() const
{
    return d->keypad.constrainedRect();
}

} // namespace ko::qtToolkit::singleton
