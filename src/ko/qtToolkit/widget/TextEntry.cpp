// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/TextEntry.h>

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/ElidedText.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

namespace ko::qtToolkit::widget {

namespace {

// Shared by every entry that was not given a validator of its own. Made on first use, so that
// it takes the default locale the application has set by then.
const QValidator *defaultValidator()
{
    static const common::DoubleValidator validator(-1000.0, 1000.0, 2);
    return &validator;
}

QString dashes()
{
    return QStringLiteral("---");
}

} // namespace

class TextEntryPrivate : public QObject
{
public:
    explicit TextEntryPrivate(TextEntry *entry);

    bool eventFilter(QObject *watched, QEvent *event) override;

    void commit(const QString &newText);
    void redraw();
    void showDisplayText();
    void setPlaceholderText(const QString &newPlaceholderText);

    bool focusIn();
    void focusOut();
    bool keyPress(const QKeyEvent &event);
    void finish();
    bool escape();

    TextEntry *const q;
    QHBoxLayout *const layout;
    QLineEdit *const lineEdit;
    const QValidator *validator = defaultValidator();
    QString placeholderText;
    QString savedText;
    QString text;
    QString displayText;
    bool finished = false;
    bool dynamicTextEntry = false;
    bool numeric = true;
    QString suffix;
};

TextEntryPrivate::TextEntryPrivate(TextEntry *entry)
    : q(entry)
    , layout(new QHBoxLayout(entry))
    , lineEdit(new QLineEdit(entry))
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(lineEdit, 0);

    lineEdit->setFocusPolicy(Qt::ClickFocus);
    lineEdit->installEventFilter(this);
    lineEdit->setAttribute(Qt::WA_MacShowFocusRect, false);

    q->installEventFilter(this);
}

// The validator repairs the text, which becomes the committed text, is shown, and is announced
// (also when it did not change).
void TextEntryPrivate::commit(const QString &newText)
{
    QString fixed = newText;
    if (validator)
        validator->fixup(fixed);
    text = fixed;
    redraw();
    Q_EMIT q->textChanged(text);
}

// Shows the committed text: a number with its suffix, any other text elided to the field's width.
void TextEntryPrivate::redraw()
{
    displayText = numeric ? text + suffix : elidedText(text, *lineEdit, 0, EllipsisMode::Elide, dashes());
    showDisplayText();
}

void TextEntryPrivate::showDisplayText()
{
    lineEdit->setText(displayText);
    // Leaves edit mode: the focus-out that this may cause finds the display unchanged.
    lineEdit->clearFocus();
    lineEdit->home(false);
}

void TextEntryPrivate::setPlaceholderText(const QString &newPlaceholderText)
{
    placeholderText = newPlaceholderText;
    lineEdit->setPlaceholderText(elidedText(placeholderText, *lineEdit, 0, EllipsisMode::Replace, dashes()));
}

bool TextEntryPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == q) {
        if (event->type() == QEvent::FontChange)
            lineEdit->setFont(q->font());
        return false;
    }
    if (watched != lineEdit)
        return false;

    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        // A touch on a panel whose window lost activation must still give the field focus.
        if (!lineEdit->hasFocus() && !QApplication::activeWindow())
            QApplication::setActiveWindow(lineEdit);
        return false;
    case QEvent::FocusIn:
        return focusIn();
    case QEvent::FocusOut:
        focusOut();
        return false;
    case QEvent::KeyPress:
        return keyPress(static_cast<const QKeyEvent &>(*event));
    case QEvent::Resize:
        // Elision follows the width; the committed text itself does not change.
        redraw();
        setPlaceholderText(placeholderText);
        return false;
    default:
        return false;
    }
}

bool TextEntryPrivate::focusIn()
{
    savedText = text;
    lineEdit->setText(savedText);
    finished = false;
    QTimer::singleShot(0, lineEdit, &QLineEdit::selectAll);

    if (!numeric || !singleton::TextEntry::instance()->useKeypad())
        return false;

    singleton::Keypad *keypad = singleton::Keypad::instance();
    if (dynamicTextEntry)
        keypad->setDynamicWidget(q);
    else
        keypad->setText(savedText);
    // The entry may be deleted while the keypad's event loop runs.
    const QPointer<TextEntry> alive(q);
    const int result = keypad->exec();
    if (!alive)
        return true;
    if (result == QDialog::Accepted) {
        commit(keypad->text());
        return true;
    }
    // Cancelled: the committed text is shown again, without a commit. Giving up the focus
    // keeps the field from opening the keypad again as soon as its window is reactivated.
    showDisplayText();
    return true;
}

void TextEntryPrivate::focusOut()
{
    finished = true;
    if (lineEdit->text() != displayText)
        commit(lineEdit->text());
    lineEdit->update();
}

void TextEntryPrivate::finish()
{
    finished = true;
    lineEdit->clearFocus();
}

bool TextEntryPrivate::escape()
{
    if (finished)
        return false;
    // Undoing the edit shows the text committed before it again; nothing is committed.
    text = savedText;
    redraw();
    return true;
}

bool TextEntryPrivate::keyPress(const QKeyEvent &event)
{
    const int key = event.key();
    if (!numeric) {
        switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
            finish();
            return false;
        case Qt::Key_Escape:
            return escape();
        default:
            return false;
        }
    }

    if (key == Qt::Key_Minus || key == Qt::Key_Period || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return false;
    // Every other printable character, and every key beyond the editing block.
    if (key < Qt::Key_Escape || key > Qt::Key_Right)
        return true;
    switch (key) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return false;
    case Qt::Key_Tab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finish();
        return false;
    case Qt::Key_Escape:
        return escape();
    default:
        return true;
    }
}

TextEntry::TextEntry(QWidget *parent)
    : TextEntry(QString(), parent)
{
}

TextEntry::TextEntry(const QString &text, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<TextEntryPrivate>(this))
{
    d->commit(text);
}

TextEntry::~TextEntry() = default;

QString TextEntry::text() const
{
    return d->text;
}

void TextEntry::setText(const QString &text)
{
    d->commit(text);
}

QString TextEntry::suffix() const
{
    return d->suffix;
}

void TextEntry::setSuffix(const QString &suffix)
{
    if (d->suffix == suffix)
        return;
    d->suffix = suffix;
    d->commit(d->text);
}

QString TextEntry::placeholderText() const
{
    return d->placeholderText;
}

void TextEntry::setPlaceholderText(const QString &placeholderText)
{
    d->setPlaceholderText(placeholderText);
}

const QValidator *TextEntry::validator() const
{
    return d->validator;
}

void TextEntry::setValidator(const QValidator *validator)
{
    d->validator = validator;
    if (!d->numeric)
        d->lineEdit->setValidator(validator);
}

bool TextEntry::isNumeric() const
{
    return d->numeric;
}

void TextEntry::setNumeric(bool numeric)
{
    d->numeric = numeric;
    // A numeric entry's typing is checked by the keypad, not by the line edit.
    d->lineEdit->setValidator(numeric ? nullptr : d->validator);
}

bool TextEntry::isDynamicTextEntry() const
{
    return d->dynamicTextEntry;
}

void TextEntry::setDynamicTextEntry(bool dynamicTextEntry)
{
    d->dynamicTextEntry = dynamicTextEntry;
}

} // namespace ko::qtToolkit::widget
