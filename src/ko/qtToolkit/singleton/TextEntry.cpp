#include <ko/qtToolkit/singleton/TextEntry.h>

namespace ko::qtToolkit::singleton {

TextEntry::TextEntry() = default;

TextEntry *TextEntry::instance()
{
    static auto *const instance = new TextEntry;
    return instance;
}

bool TextEntry::useKeypad() const
{
    return m_useKeypad;
}

void TextEntry::setUseKeypad(bool useKeypad)
{
    if (m_useKeypad == useKeypad)
        return;
    m_useKeypad = useKeypad;
    Q_EMIT useKeypadChanged(m_useKeypad);
}

} // namespace ko::qtToolkit::singleton
