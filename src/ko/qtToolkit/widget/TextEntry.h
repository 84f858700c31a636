// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_TEXTENTRY_H
#define KO_QTTOOLKIT_WIDGET_TEXTENTRY_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QString>
#include <QWidget>

#include <memory>

class QValidator;

namespace ko::qtToolkit::widget {

class TextEntryPrivate;

/**
 * \brief A single-line entry field for touch panels, numeric by default.
 *
 * The entry keeps its committed text() apart from what it shows: a numeric entry shows the text
 * followed directly by its suffix ("5.00dB"); a text entry shows the text elided to its width.
 * While the user edits, the raw text is shown and selected; Return, Enter, Tab or leaving the
 * field commits the edit, and Escape before that restores the committed text without a signal.
 *
 * Every text that is committed goes through the validator's fixup() first. The default
 * validator, shared by all entries, is a common::DoubleValidator from -1000 to 1000 with 2
 * decimals, so that a numeric entry set to "5" holds "5.00" and one set to "2000" holds
 * "1000.00". A text entry normally wants setValidator(nullptr) or a validator of its own.
 *
 * A numeric entry accepts only digits, "-" and "." from the keyboard. When
 * singleton::TextEntry::useKeypad() is on, it opens the application's keypad
 * (singleton::Keypad) as soon as it gets focus and commits the keypad's text when the keypad
 * is accepted; a cancelled keypad leaves the text as it was. An entry marked as dynamic text
 * entry is handed to the keypad itself and follows the keypad's value while it is open.
 */
class KO_QTTOOLKIT_EXPORT TextEntry : public QWidget
{
    Q_OBJECT
    /// The committed text, without the suffix; see text(). Notified by textChanged() at every
    /// commit, changed or not.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// The unit shown after a numeric text; see suffix().
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)

public:
    /**
     * \brief An empty numeric entry; the default validator turns its text into "0.00".
     * \param parent the owner of the entry, or null
     */
    explicit TextEntry(QWidget *parent = nullptr);

    /**
     * \brief A numeric entry holding \a text, after the default validator's fixup().
     * \param text the first text, repaired by the default validator: "5" becomes "5.00".
     * \param parent the owner of the entry, or null
     */
    explicit TextEntry(const QString &text, QWidget *parent = nullptr);

    ~TextEntry() override;

    /// \brief The committed text, never with the suffix.
    QString text() const;

    /**
     * \brief Commits \a text: the validator's fixup() repairs it, the display follows, and
     *        textChanged() is emitted, also when the text did not change.
     */
    void setText(const QString &text);

    /// \brief The unit shown right after a numeric text, without a separator; empty by default.
    QString suffix() const;

    /// \brief Sets the unit shown after a numeric text; on change, commits the text again.
    void setSuffix(const QString &suffix);

    /// \brief The text shown while the field is empty.
    QString placeholderText() const;

    /// \brief Sets the text shown while the field is empty; "---" when it is too wide.
    void setPlaceholderText(const QString &placeholderText);

    /// \brief The validator whose fixup() repairs every committed text, or null.
    const QValidator *validator() const;

    /**
     * \brief Sets the validator that repairs every committed text; null for none.
     *
     * A text entry also checks typing with it; a numeric entry leaves the checking to the
     * keypad. The validator is not owned and must outlive the entry, or be replaced first.
     */
    void setValidator(const QValidator *validator);

    /// \brief Whether the entry holds a number; true by default.
    bool isNumeric() const;

    /**
     * \brief Makes the entry numeric (suffix, digits only, keypad) or a text entry (elided,
     *        typing checked by the validator). The display follows at the next commit.
     */
    void setNumeric(bool numeric);

    /// \brief Whether the keypad edits this entry live; false by default.
    bool isDynamicTextEntry() const;

    /**
     * \brief Lets the keypad edit this entry live while it is open, with the fader set to the
     *        range of the entry's QDoubleValidator.
     */
    void setDynamicTextEntry(bool dynamicTextEntry);

Q_SIGNALS:
    /// \brief Emitted with the committed text whenever a text is committed, changed or not.
    void textChanged(const QString &text);

private:
    std::unique_ptr<TextEntryPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
