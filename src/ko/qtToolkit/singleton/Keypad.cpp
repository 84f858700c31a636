#include <ko/qtToolkit/singleton/Keypad.h>

namespace ko::qtToolkit::singleton {

Keypad::Keypad() = default;

Keypad *Keypad::instance()
{
    static auto *const instance = new Keypad;
    return instance;
}

int Keypad::exec()
{
    return m_dialog.exec();
}

void Keypad::setText(const QString &text)
{
    m_dialog.setText(text);
}

QString Keypad::text() const
{
    return m_dialog.text();
}

void Keypad::setDynamicWidget(widget::TextEntry *entry)
{
    m_dialog.setDynamicWidget(entry);
}

widget::TextEntry *Keypad::dynamicWidget() const
{
    return m_dialog.dynamicWidget();
}

void Keypad::setConstrainedRect(const QRect &rect)
{
    m_dialog.setConstrainedRect(rect);
}

QRect Keypad::constrainedRect() const
{
    return m_dialog.constrainedRect();
}

} // namespace ko::qtToolkit::singleton
