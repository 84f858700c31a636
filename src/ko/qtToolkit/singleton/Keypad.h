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
 * destroyed. An application sets constrainedRect() to the area the keypad may use, usually its
 * main window's geometry, before an entry first opens it.
 */
class KO_QTTOOLKIT_EXPORT Keypad : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// \brief The one instance, created on the first call.
    static Keypad *instance();

    ~Keypad() override;

    /// \brief Runs the dialog modally; returns QDialog::Accepted or QDialog::Rejected.
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

    /// \brief See dialog::Keypad::setConstrainedRect().
    void setConstrainedRect(const QRect &rect);
    /// \brief See dialog::Keypad::constrainedRect().
    QRect constrainedRect() const;

private:
    Keypad();

    std::unique_ptr<KeypadPrivate> const d;
};

} // namespace ko::qtToolkit::singleton

#endif
