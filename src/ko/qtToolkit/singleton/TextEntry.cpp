// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/singleton/TextEntry.h>

namespace ko::qtToolkit::singleton {

class TextEntryPrivate
{
public:
    bool useKeypad = false;
};

TextEntry::TextEntry()
    : d(std::make_unique<TextEntryPrivate>())
{
}

TextEntry::~TextEntry() = default;

TextEntry *TextEntry::instance()
{
    static auto *const instance = new TextEntry;
    return instance;
}

bool TextEntry::useKeypad() const
{
    return d->useKeypad;
}

void TextEntry::setUseKeypad(bool useKeypad)
{
    if (d->useKeypad == useKeypad)
        return;
    d->useKeypad = useKeypad;
    Q_EMIT useKeypadChanged(d->useKeypad);
}

} // namespace ko::qtToolkit::singleton
