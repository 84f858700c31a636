// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_KEYPADSUPPORT_H
#define KO_QTTOOLKIT_KEYPADSUPPORT_H

#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/widget/Keypad.h>

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace ko::qtToolkit::test {

/// The dialog that singleton::Keypad holds (it has no accessor of its own).
inline dialog::Keypad *sharedKeypadDialog()
{
    singleton::Keypad::instance();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *keypad = qobject_cast<dialog::Keypad *>(window))
            return keypad;
    }
    return nullptr;
}

/// The key of \a keypad captioned \a label, or null.
inline QPushButton *keypadButton(const widget::Keypad &keypad, const QString &label)
{
    const QList<QPushButton *> buttons = keypad.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == label)
            return button;
    }
    return nullptr;
}

/// The key of the keypad in \a dialog captioned \a label, or null.
inline QPushButton *keypadButton(const dialog::Keypad &dialog, const QString &label)
{
    const auto *keypad = dialog.findChild<widget::Keypad *>();
    return keypad ? keypadButton(*keypad, label) : nullptr;
}

/// The floating close button of \a dialog, or null.
inline QPushButton *closeButton(const dialog::Keypad &dialog)
{
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton *button : buttons) {
        if (button->property("class").toString() == QLatin1String("close"))
            return button;
    }
    return nullptr;
}

/// Clicks the key captioned \a label, or the close button for "close"; false when there is none.
inline bool clickKeypad(const dialog::Keypad &dialog, const QString &label)
{
    QPushButton *button = label == QLatin1String("close") ? closeButton(dialog) : keypadButton(dialog, label);
    if (!button)
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
}

/**
 * Plays the user at a keypad dialog that runs modally: each time the dialog is shown, the next
 * script runs inside its exec() once the dialog is the active window. A dialog that a script
 * leaves open, or that opens without a script, is rejected, so that a failing test cannot hang.
 */
class KeypadDriver : public QObject
{
public:
    using Script = std::function<void(dialog::Keypad &)>;

    explicit KeypadDriver(dialog::Keypad &dialog)
        : m_dialog(dialog)
    {
        m_dialog.installEventFilter(this);
    }

    /// Queues \a script for the next opening.
    void then(Script script) { m_scripts.append(std::move(script)); }

    /// How often the dialog was shown since the driver was made.
    int openings = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_dialog && event->type() == QEvent::Show) {
            ++openings;
            QTimer::singleShot(0, this, [this] { play(); });
        }
        return false;
    }

private:
    void play()
    {
        if (!QTest::qWaitForWindowActive(&m_dialog))
            qWarning("the keypad did not become the active window");
        if (!m_scripts.isEmpty())
            m_scripts.takeFirst()(m_dialog);
        if (m_dialog.isVisible())
            m_dialog.reject();
    }

    dialog::Keypad &m_dialog;
    QList<Script> m_scripts;
};

} // namespace ko::qtToolkit::test

#endif
