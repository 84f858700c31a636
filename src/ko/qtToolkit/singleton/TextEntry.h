// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_SINGLETON_TEXTENTRY_H
#define KO_QTTOOLKIT_SINGLETON_TEXTENTRY_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QObject>

#include <memory>

namespace ko::qtToolkit::singleton {

class TextEntryPrivate;

/**
 * \brief The application-wide settings of widget::TextEntry.
 *
 * Created on the first call of instance(), never destroyed.
 */
class KO_QTTOOLKIT_EXPORT TextEntry : public QObject
{
    Q_OBJECT

public:
    /// \brief The one instance, created on the first call.
    static TextEntry *instance();

    ~TextEntry() override;

    /**
     * \brief Whether numeric entries open the keypad (singleton::Keypad) when they get focus;
     *        false by default.
     */
    bool useKeypad() const;

    /// \brief Switches the keypad for numeric entries on or off; emits useKeypadChanged() on change.
    void setUseKeypad(bool useKeypad);

Q_SIGNALS:
    /// \brief useKeypad() changed to \a useKeypad.
    void useKeypadChanged(bool useKeypad);

private:
    TextEntry();

    std::unique_ptr<TextEntryPrivate> const d;
};

} // namespace ko::qtToolkit::singleton

#endif
