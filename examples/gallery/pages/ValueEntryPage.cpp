// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Value entry: numeric fields with units and ranges, a text field, the keypad that numeric
// fields open when it is switched on, and the message box the library asks the application for.

#include "GalleryPage.h"

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/common/ExternalMessageBox.h>
#include <ko/qtToolkit/singleton/ExternalMessageBox.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>

namespace {

using namespace ko::qtToolkit;

// The gallery's answer to the library's requests for message boxes.
class MessageBox : public common::ExternalMessageBox
{
public:
    int confirm(QWidget &source, const QString &title, const QString &message, QMessageBox::Icon icon) const override
    {
        QMessageBox box(icon, title, message, QMessageBox::Yes | QMessageBox::No, &source);
        box.setDefaultButton(QMessageBox::No);
        return box.exec();
    }

    int information(QWidget &source, const QString &title, const QString &message,
                    QMessageBox::Icon icon) const override
    {
        QMessageBox box(icon, title, message, QMessageBox::Ok, &source);
        return box.exec();
    }
};

// A numeric field, its range and unit, and the value "Reset" returns to.
struct Field
{
    const char *label;
    double bottom;
    double top;
    int decimals;
    const char *suffix;
    const char *initial;
    bool dynamic;
};

const Field fields[] = {
    {"Gain", -60.0, 15.0, 1, "dB", "-6.0", true},
    {"Frequency", 20.0, 20000.0, 0, "Hz", "1000", false},
    {"Delay", 0.0, 500.0, 1, "ms", "12.5", true},
};

QString initialName()
{
    return QStringLiteral("Lead vocal, stage left, wireless handheld transmitter 3");
}

// Keeps the keypad inside the gallery window, wherever the window goes.
class KeypadArea : public QObject
{
public:
    explicit KeypadArea(QWidget &page)
        : QObject(&page)
        , m_page(page)
    {
        page.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_page && event->type() == QEvent::Show && !m_window) {
            m_window = m_page.window();
            m_window->installEventFilter(this);
            update();
        } else if (watched == m_window && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
            update();
        }
        return false;
    }

private:
    void update() { singleton::Keypad::instance()->setConstrainedRect(m_window->geometry()); }

    QWidget &m_page;
    QWidget *m_window = nullptr;
};

QWidget *createFieldsBox(QVector<widget::TextEntry *> &numeric, widget::TextEntry *&name)
{
    auto *box = new QGroupBox(QStringLiteral("Entries"));
    auto *form = new QFormLayout(box);
    for (const Field &field : fields) {
        auto *entry = new widget::TextEntry(box);
        // Owned by the entry, which outlives every use of it.
        entry->setValidator(new common::DoubleValidator(field.bottom, field.top, field.decimals, entry));
        entry->setSuffix(QString::fromLatin1(field.suffix));
        entry->setText(QString::fromLatin1(field.initial));
        entry->setDynamicTextEntry(field.dynamic);
        const QString range = QStringLiteral("%1 (%2 to %3 %4%5)")
                                  .arg(QString::fromLatin1(field.label))
                                  .arg(field.bottom)
                                  .arg(field.top)
                                  .arg(QString::fromLatin1(field.suffix))
                                  .arg(field.dynamic ? QStringLiteral(", live") : QString());
        form->addRow(range, entry);
        numeric.append(entry);
    }

    name = new widget::TextEntry(box);
    name->setNumeric(false);
    name->setValidator(nullptr);
    name->setPlaceholderText(QStringLiteral("Channel name"));
    name->setText(initialName());
    form->addRow(QStringLiteral("Name (text, elided)"), name);
    return box;
}

QWidget *createKeypadSwitch()
{
    auto *box = new QGroupBox(QStringLiteral("Keypad for numeric entries"));
    auto *layout = new QHBoxLayout(box);
    auto *toggle = new widget::ToggleButtonGroup(box);
    toggle->setOn(singleton::TextEntry::instance()->useKeypad());
    QObject::connect(toggle, &widget::ToggleButtonGroup::onToggled, singleton::TextEntry::instance(),
                     &singleton::TextEntry::setUseKeypad);
    auto *hint = new QLabel(QStringLiteral("When on, touching a numeric entry opens the keypad inside this "
                                           "window; drag it by its border. Live entries follow the keypad's fader."));
    hint->setWordWrap(true);
    layout->addWidget(toggle);
    layout->addWidget(hint, 1);
    return box;
}

QWidget *createKeypadBox()
{
    auto *box = new QGroupBox(QStringLiteral("Keypad widget"));
    auto *layout = new QVBoxLayout(box);
    auto *keypad = new widget::Keypad(box);
    keypad->setMinimumData(-100.0f);
    keypad->setMaximumData(100.0f);
    keypad->setNumberOfDecimals(2);
    auto *result = new QLabel(QStringLiteral("OK sends the value through the fader (-100 to 100, 2 decimals)"));
    result->setWordWrap(true);
    QObject::connect(keypad, &widget::Keypad::accepted, result,
                     [keypad, result] { result->setText(QStringLiteral("Accepted: %1").arg(keypad->text())); });
    QObject::connect(keypad, &widget::Keypad::rejected, result,
                     [result] { result->setText(QStringLiteral("Cancelled")); });
    layout->addWidget(keypad, 1);
    layout->addWidget(result);
    return box;
}

QWidget *createValueEntryPage()
{
    static const MessageBox messageBox;
    singleton::ExternalMessageBox::instance()->setImplementation(&messageBox);

    auto *page = new QWidget;
    new KeypadArea(*page);

    QVector<widget::TextEntry *> numeric;
    widget::TextEntry *name = nullptr;
    auto *left = new QVBoxLayout;
    left->addWidget(createFieldsBox(numeric, name));
    left->addWidget(createKeypadSwitch());

    auto *reset = new widget::Button(QStringLiteral("Reset all values..."), page);
    QObject::connect(reset, &QPushButton::clicked, page, [reset, numeric, name] {
        const int answer = singleton::ExternalMessageBox::instance()->confirm(
            *reset, QStringLiteral("Reset"), QStringLiteral("Reset every entry to its initial value?"),
            QMessageBox::Question);
        if (answer != QMessageBox::Yes)
            return;
        for (int i = 0; i < numeric.size(); ++i)
            numeric.at(i)->setText(QString::fromLatin1(fields[i].initial));
        name->setText(initialName());
    });
    left->addWidget(reset);

    // What the entries committed last, as their textChanged() reports it.
    auto *committed = new QLabel(QStringLiteral("Touch an entry and commit a value."));
    committed->setWordWrap(true);
    auto *committedBox = new QGroupBox(QStringLiteral("Last commit"));
    (new QVBoxLayout(committedBox))->addWidget(committed);
    for (int i = 0; i < numeric.size(); ++i) {
        const QString label = QString::fromLatin1(fields[i].label);
        const QString suffix = QString::fromLatin1(fields[i].suffix);
        QObject::connect(numeric.at(i), &widget::TextEntry::textChanged, committed,
                         [committed, label, suffix](const QString &text) {
                             committed->setText(QStringLiteral("%1: %2 %3").arg(label, text, suffix));
                         });
    }
    QObject::connect(name, &widget::TextEntry::textChanged, committed, [committed](const QString &text) {
        committed->setText(QStringLiteral("Name: %1").arg(text));
    });
    left->addWidget(committedBox);
    left->addStretch(1);

    auto *layout = new QHBoxLayout(page);
    layout->addLayout(left, 3);
    layout->addWidget(createKeypadBox(), 2);
    return page;
}

const gallery::PageRegistration registration{20, QStringLiteral("Value entry"), createValueEntryPage};

} // namespace
