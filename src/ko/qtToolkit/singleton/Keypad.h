// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_SINGLETON_KEYPAD_H
#define KO_QTTOOLKIT_SINGLETON_KEYPAD_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/dialog/Keypad.h>

#include <QObject>
#include <QRect>
#include <QString>

#include <memory>

namespace ko::qtToolkit::widget {
class TextEntry;
}

namespace ko::qtToolkit::singleton {

class KeypadPrivate;

/**
 * \brief The keypad dialog that every numeric widget::TextEntry opens.
 *
 * One dialog::Keypad, made on the first call of instance() (after the QApplication) and never
 * destroyed. While singleton::TextEntry::useKeypad() is on, a numeric entry that gets focus
 * hands it its text (or, for a dynamic text entry, itself), runs exec() and, when the keypad is
 * accepted, commits text() through its validator.
 *
 * \warning Set constrainedRect() before an entry first opens the keypad. The window is always
 * kept inside that rectangle, and the default is a null rectangle (left 0, top 0, right -1,
 * bottom -1), which no window fits into: the keypad then opens at negative coordinates, off the
 * screen's top left corner, and cannot be dragged back. Give it the area the keypad may use, in
 * global coordinates, usually the main window's geometry or the screen's available geometry:
 * \code
 * ko::qtToolkit::singleton::Keypad::instance()->setConstrainedRect(mainWindow.geometry());
 * ko::qtToolkit::singleton::TextEntry::instance()->setUseKeypad(true);
 * \endcode
 * A rectangle smaller than the window keeps its right and bottom edges: the window sticks out at
 * the left and the top. The keypad opens where the user last left it, relative to the rectangle's
 * top left; a new rectangle moves nothing until the next time the keypad opens.
 */
class KO_QTTOOLKIT_EXPORT Keypad : public QObject
{
    Q_OBJECT
    /// The keypad's display text; see text().
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// \brief The one instance, created on the first call.
    static Keypad *instance();

    ~Keypad() override;

    /**
     * \brief Runs the dialog modally, in an event loop of its own, until "OK" (or Enter) accepts
     *        it or Escape or the close button rejects it.
     * \return QDialog::Accepted or QDialog::Rejected.
     */
    int exec();

    /// \brief See dialog::Keypad::setText().
    void setText(const QString &text);
    /// \brief See dialog::Keypad::text().
    QString text() const;

    /**
     * \brief See dialog::Keypad::setDynamicWidget().
     *
     * The entry is not owned.
     */
    void setDynamicWidget(widget::TextEntry *entry);
    /// \brief See dialog::Keypad::dynamicWidget().
    widget::TextEntry *dynamicWidget() const;

    /// \brief See dialog::Keypad::setReplaceOnFirstKey().
    void setReplaceOnFirstKey(bool replace);
    /// \brief See dialog::Keypad::replaceOnFirstKey().
    bool replaceOnFirstKey() const;

    /**
     * \brief Sets the rectangle, in global coordinates, the keypad is kept in; see
     *        dialog::Keypad::setConstrainedRect().
     *
     * Set it before the keypad first opens: with the default null rectangle the keypad opens
     * off the screen (see the class description).
     */
    void setConstrainedRect(const QRect &rect);
    /// \brief The rectangle the keypad is kept in; a null rectangle until one is set.
    QRect constrainedRect() const;

private:
    Keypad();

    std::unique_ptr<KeypadPrivate> const d;
};

} // namespace ko::qtToolkit::singleton

#endif
