// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_KEYPAD_H
#define KO_QTTOOLKIT_WIDGET_KEYPAD_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QGroupBox>
#include <QString>

#include <memory>

namespace ko::qtToolkit::widget {

class KeypadPrivate;
class TextEntry;

/**
 * \brief An on-screen numeric keypad: a display, fifteen keys and a fader.
 *
 * The keys 0 to 9, ".", "-", "K" (thousands), "DEL" and "OK" build a number as text in the
 * display; a hardware keyboard works the same way (comma and full stop for the point, Delete as
 * Backspace, Return as Enter, Escape to cancel). The first key after the keypad is shown starts
 * a new number.
 *
 * "OK" passes the typed value through the fader, which clamps it to its range and formats it
 * with its decimals, then emits accepted(). Escape emits rejected().
 *
 * The fader, at the right, is shown only while the keypad edits a TextEntry live (see
 * setDynamicWidget()); it then takes its range from the entry's QDoubleValidator. Keys edit the
 * display only: values are clamped on "OK" alone. Each change of the fader's value, by "OK" or
 * by a finger on the fader, reports the clamped and formatted value through valueUpdated().
 */
class KO_QTTOOLKIT_EXPORT Keypad : public QGroupBox
{
    Q_OBJECT

public:
    /**
     * \brief A keypad titled "Numeric Keypad" showing "0".
     * \param parent the owner of the keypad, or null
     */
    explicit Keypad(QWidget *parent = nullptr);
    ~Keypad() override;

    /// \brief Shows \a text in the display, hides the fader and forgets the dynamic widget.
    void setText(const QString &text);

    /// \brief The display's text.
    QString text() const;

    /**
     * \brief Lets the keypad edit \a entry live: shows the fader set to the entry's value and,
     *        when the entry has a QDoubleValidator, to its range; null changes nothing else.
     *
     * The entry is not owned; the keypad forgets it when it is deleted.
     */
    void setDynamicWidget(TextEntry *entry);

    /// \brief The entry edited live, or null.
    TextEntry *dynamicWidget() const;

    /**
     * \brief Makes the first key after a new text start a new number, as a calculator does.
     *
     * When on, the keypad waits for a first key whenever it receives a text (setText(),
     * setDynamicWidget() with an entry), after "OK" and when it is shown; while it waits, the
     * display shows its text selected. The first digit, "." or "-" then replaces that text instead
     * of being added to it: "250.0" followed by 3 gives "3", not "250.03". "DEL" and "K" act on the
     * text shown, as they do later; Escape leaves the keypad waiting. Every key but Escape ends the
     * wait, and later keys follow the usual rules.
     *
     * When off (the default), the keypad only starts a new number with the first key after it is
     * shown, and shows no selection. Turning it on while the keypad is about to start a new number
     * selects the display's text at once; turning it off ends the wait and clears the selection.
     */
    void setReplaceOnFirstKey(bool replace);

    /// \brief Whether the first key after a new text replaces it; false by default.
    bool replaceOnFirstKey() const;

    /// \brief Sets the lower end of the fader's range.
    void setMinimumData(float minimum);

    /// \brief Sets the upper end of the fader's range.
    void setMaximumData(float maximum);

    /// \brief Sets the number of decimals the fader keeps and the display shows after "OK".
    void setNumberOfDecimals(unsigned int decimals);

Q_SIGNALS:
    /**
     * \brief "OK" or Enter was pressed; follows valueUpdated() when "OK" changed the fader.
     *
     * \warning text() holds the clamped value only while the key is being handled: a slot
     * connected directly sees the fader's clamped and formatted text ("100.0") when "OK" changed
     * the fader's value, and the typed text otherwise. Once the key has been handled, the display
     * shows the text as typed again ("250"), and so does text(). Clamp what is read later
     * yourself (a widget::TextEntry does so with its validator), or read it during
     * valueUpdated().
     */
    void accepted();

    /// \brief Escape was pressed; the display keeps its text.
    void rejected();

    /**
     * \brief The fader's value changed, by "OK" or by a finger on the fader; text() holds the
     *        new value, clamped and formatted with the fader's decimals, during the signal.
     *
     * After "OK", the display returns to the text as typed once the key has been handled (see
     * accepted()); after a move of the fader, it keeps the fader's value.
     */
    void valueUpdated();

private:
    std::unique_ptr<KeypadPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
