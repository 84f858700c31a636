// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_DIALOG_KEYPAD_H
#define KO_QTTOOLKIT_DIALOG_KEYPAD_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QDialog>
#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>

namespace ko::qtToolkit::widget {
class TextEntry;
}

namespace ko::qtToolkit::dialog {

class KeypadPrivate;

/**
 * \brief The numeric keypad (widget::Keypad) as a frameless, application-modal tool window.
 *
 * "OK" accepts the dialog, Escape and the floating close button at the bottom right reject it.
 * The window can be dragged by its border (behavior::Draggable) and stays inside
 * constrainedRect(); it opens again where the user left it, at constrainedOffset() from the
 * rectangle's top left.
 *
 * \warning Set a constrained rectangle before the first exec(). The window is always kept
 * inside it, and the default null rectangle (left 0, top 0, right -1, bottom -1) fits no
 * window: the dialog then opens at negative coordinates, off the screen. A rectangle smaller
 * than the window keeps its right and bottom edges, so the window sticks out at the left and the
 * top. A new rectangle moves nothing until the next Show or drag. The dialog does not centre
 * itself over a parent either (it has none): its place comes from the rectangle and the offset
 * alone.
 *
 * While a dynamic widget is set, the entry receives every value the keypad produces through
 * widget::TextEntry::setText(), so it shows each change while the dialog is open.
 */
class KO_QTTOOLKIT_EXPORT Keypad : public QDialog
{
    Q_OBJECT

public:
    /// \brief The dialog, without parent.
    Keypad();
    ~Keypad() override;

    /// \brief See widget::Keypad::setText().
    void setText(const QString &text);
    /// \brief See widget::Keypad::text().
    QString text() const;

    /**
     * \brief See widget::Keypad::setDynamicWidget().
     *
     * The entry is not owned.
     */
    void setDynamicWidget(widget::TextEntry *entry);
    /// \brief See widget::Keypad::dynamicWidget().
    widget::TextEntry *dynamicWidget() const;

    /// \brief See widget::Keypad::setReplaceOnFirstKey().
    void setReplaceOnFirstKey(bool replace);
    /// \brief See widget::Keypad::replaceOnFirstKey().
    bool replaceOnFirstKey() const;

    /// \brief See widget::Keypad::setMinimumData().
    void setMinimumData(float minimum);
    /// \brief See widget::Keypad::setMaximumData().
    void setMaximumData(float maximum);
    /// \brief See widget::Keypad::setNumberOfDecimals().
    void setNumberOfDecimals(unsigned int decimals);

    /**
     * \brief Sets the rectangle, in global coordinates, the window is kept in; moves nothing.
     *
     * Set it before the first exec(): with the default null rectangle the window opens off the
     * screen.
     */
    void setConstrainedRect(const QRect &rect);
    /// \brief The rectangle the window is kept in; a null rectangle by default.
    QRect constrainedRect() const;

    /// \brief Sets where the window opens next, relative to constrainedRect()'s top left.
    void setConstrainedOffset(const QPoint &offset);
    /// \brief Where the window was last placed, relative to constrainedRect()'s top left.
    QPoint constrainedOffset() const;

protected:
    /// \brief Keeps the close button at the bottom right corner.
    void resizeEvent(QResizeEvent *event) override;

private:
    std::unique_ptr<KeypadPrivate> const d;
};

} // namespace ko::qtToolkit::dialog

#endif
