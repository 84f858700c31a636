// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/Keypad.h>

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <QDoubleValidator>
#include <QEvent>
#include <QGridLayout>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

#include <limits>

namespace ko::qtToolkit::widget {

namespace {

// The keys in the order they are made, with their places in the grid below the display.
struct Key
{
    int code;
    int row;
    int column;
    int rowSpan;
};

constexpr Key keys[] = {
    {Qt::Key_0, 4, 0, 1},         {Qt::Key_1, 3, 0, 1},     {Qt::Key_2, 3, 1, 1},     {Qt::Key_3, 3, 2, 1},
    {Qt::Key_4, 2, 0, 1},         {Qt::Key_5, 2, 1, 1},     {Qt::Key_6, 2, 2, 1},     {Qt::Key_7, 1, 0, 1},
    {Qt::Key_8, 1, 1, 1},         {Qt::Key_9, 1, 2, 1},     {Qt::Key_Backspace, 1, 3, 1}, {Qt::Key_K, 2, 3, 1},
    {Qt::Key_Enter, 3, 3, 2},     {Qt::Key_Comma, 4, 1, 1}, {Qt::Key_Minus, 4, 2, 1},
};

QString label(int code)
{
    if (code >= Qt::Key_0 && code <= Qt::Key_9)
        return QString(QChar(code));
    switch (code) {
    case Qt::Key_Backspace:
        return QStringLiteral("DEL");
    case Qt::Key_K:
        return QStringLiteral("K");
    case Qt::Key_Enter:
        return QStringLiteral("OK");
    case Qt::Key_Comma:
        return QStringLiteral(".");
    case Qt::Key_Minus:
        return QStringLiteral("-");
    default:
        return {};
    }
}

// What a key means, for assistive technology: the labels "DEL", "OK" and "K" are shorthand.
QString accessibleName(int code)
{
    switch (code) {
    case Qt::Key_Backspace:
        return QStringLiteral("Backspace");
    case Qt::Key_K:
        return QStringLiteral("Thousands");
    case Qt::Key_Enter:
        return QStringLiteral("Enter");
    case Qt::Key_Comma:
        return QStringLiteral("Decimal point");
    case Qt::Key_Minus:
        return QStringLiteral("Minus");
    default:
        return label(code);
    }
}

// The keys the handler knows, with synonyms folded together; 0 for every other key.
int normalised(int key)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return key;
    switch (key) {
    case Qt::Key_Minus:
    case Qt::Key_K:
    case Qt::Key_Escape:
        return key;
    case Qt::Key_Comma:
    case Qt::Key_Period:
        return Qt::Key_Comma;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return Qt::Key_Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Qt::Key_Enter;
    default:
        return 0;
    }
}

bool isCharacterKey(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Comma || key == Qt::Key_Minus
           || key == Qt::Key_K;
}

// The keys that begin a new number when the keypad replaces on the first key; "K" multiplies
// the number shown, as Backspace edits it.
bool startsNumber(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Comma || key == Qt::Key_Minus;
}

} // namespace

class KeypadPrivate : public QObject
{
public:
    explicit KeypadPrivate(Keypad *keypad);

    bool eventFilter(QObject *watched, QEvent *event) override;

    void keyPressed(int key);
    void faderDataChanged(float value);
    void awaitFirstKey();

    Keypad *const q;
    QLineEdit *const display;
    QHash<int, Button *> buttons;
    GenericDataFader *fader = nullptr;
    bool replaceNext = true;
    bool replaceOnFirstKey = false;
    bool awaitingFirstKey = false; // only while replaceOnFirstKey: the display's text is selected
    QPointer<TextEntry> dynamicWidget;
};

KeypadPrivate::KeypadPrivate(Keypad *keypad)
    : q(keypad)
    , display(new QLineEdit(keypad))
{
    display->setAlignment(Qt::AlignCenter);
    display->setFocusPolicy(Qt::NoFocus);
    display->setText(QStringLiteral("0"));

    for (const Key &key : keys) {
        auto *button = new Button(label(key.code), q);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setAccessibleName(accessibleName(key.code));
        const int code = key.code;
        QObject::connect(button, &QPushButton::clicked, this, [this, code] { keyPressed(code); });
        buttons.insert(code, button);
    }

    fader = new GenericDataFader(Qt::Vertical, q);
    fader->setMinimumData(0.0f);
    fader->setMaximumData(100.0f);
    fader->setNumberOfDecimals(1);
    fader->hide();

    q->installEventFilter(this);
    QObject::connect(fader, &GenericDataFader::dataChanged, this, &KeypadPrivate::faderDataChanged);
}

bool KeypadPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != q)
        return false;
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::ShowToParent:
        q->setFocus();
        replaceNext = true;
        awaitFirstKey();
        break;
    case QEvent::KeyPress:
        // A hardware keyboard works like the keys; the event still reaches the keypad.
        keyPressed(static_cast<const QKeyEvent *>(event)->key());
        break;
    default:
        break;
    }
    return false;
}

void KeypadPrivate::keyPressed(int pressed)
{
    const int key = normalised(pressed);
    if (key == 0)
        return;

    if (replaceOnFirstKey) {
        // Escape leaves the received text waiting for its first key.
        replaceNext = false;
        if (awaitingFirstKey && key != Qt::Key_Escape) {
            awaitingFirstKey = false;
            if (startsNumber(key))
                display->clear();
        }
    } else if (replaceNext) {
        replaceNext = false;
        if (isCharacterKey(key))
            display->clear();
    }

    QString text = display->text();
    const float value = text.toFloat();

    switch (key) {
    case Qt::Key_Escape:
        Q_EMIT q->rejected();
        break;
    case Qt::Key_Backspace:
        text.chop(1);
        break;
    case Qt::Key_Enter:
        // Only Enter goes through the fader. It clamps and formats: its dataChanged() rewrites the display and emits
        // valueUpdated() before accepted().
        fader->setData(text.toFloat());
        Q_EMIT q->accepted();
        break;
    case Qt::Key_Comma:
        text += QLatin1Char('.');
        break;
    case Qt::Key_Minus:
        // A number beyond the float range reads as infinity: it is negated as text, not shown as
        // "-inf".
        if (value == 0.0f || value == std::numeric_limits<float>::infinity())
            text.prepend(QLatin1Char('-'));
        else if (value > 0.0f)
            text = QString::number(-value, 'g', 6);
        break;
    case Qt::Key_K:
        if (value != 0.0f)
            text += QStringLiteral("000");
        break;
    default: // a digit
        if (value == 0.0f && !text.contains(QLatin1Char('.')) && !text.contains(QLatin1Char('-')))
            text = QChar(key);
        else
            text += QChar(key);
        break;
    }

    // The display keeps the text as typed, also after Enter, where it replaces what the fader
    // wrote: a receiver that reads text() during valueUpdated() or accepted() sees the clamped
    // value.
    display->setText(text);
    if (key == Qt::Key_Enter)
        awaitFirstKey();
    else if (awaitingFirstKey)
        display->selectAll();
}

void KeypadPrivate::faderDataChanged(float value)
{
    display->setText(QString::number(value, 'f', int(fader->getNumberOfDecimals())));
    if (awaitingFirstKey)
        display->selectAll();
    Q_EMIT q->valueUpdated();
}

void KeypadPrivate::awaitFirstKey()
{
    if (!replaceOnFirstKey)
        return;
    awaitingFirstKey = true;
    display->selectAll();
}

Keypad::Keypad(QWidget *parent)
    : QGroupBox(QStringLiteral("Numeric Keypad"), parent)
    , d(std::make_unique<KeypadPrivate>(this))
{
    setFocusPolicy(Qt::StrongFocus);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(d->display, 0, 0, 1, 4);
    for (const Key &key : keys)
        layout->addWidget(d->buttons.value(key.code), key.row, key.column, key.rowSpan, 1);
    layout->addWidget(d->fader, 0, 4, 5, 1);
}

Keypad::~Keypad() = default;

void Keypad::setText(const QString &text)
{
    d->display->setText(text);
    d->fader->hide();
    d->dynamicWidget = nullptr;
    d->awaitFirstKey();
}

QString Keypad::text() const
{
    return d->display->text();
}

void Keypad::setDynamicWidget(TextEntry *entry)
{
    d->dynamicWidget = entry;
    if (!entry)
        return;

    d->fader->show();
    const QString text = entry->text();
    d->display->setText(text);

    // The range comes first, so that the fader shows the entry's value and not one clamped to
    // the previous entry's range; neither step may write into the new entry.
    const QSignalBlocker blocker(d->fader);
    if (const auto *validator = qobject_cast<const QDoubleValidator *>(entry->validator())) {
        d->fader->setMinimumData(float(validator->bottom()));
        d->fader->setMaximumData(float(validator->top()));
    }
    d->fader->setData(text.toFloat());
    d->awaitFirstKey();
}

TextEntry *Keypad::dynamicWidget() const
{
    return d->dynamicWidget;
}

void Keypad::setReplaceOnFirstKey(bool replace)
{
    if (d->replaceOnFirstKey == replace)
        return;
    d->replaceOnFirstKey = replace;
    // A keypad that was going to start a new number anyway now shows it.
    if (replace && d->replaceNext)
        d->awaitFirstKey();
    if (!replace && d->awaitingFirstKey) {
        d->awaitingFirstKey = false;
        d->display->deselect();
    }
}

bool Keypad::replaceOnFirstKey() const
{
    return d->replaceOnFirstKey;
}

void Keypad::setMinimumData(float minimum)
{
    d->fader->setMinimumData(minimum);
}

void Keypad::setMaximumData(float maximum)
{
    d->fader->setMaximumData(maximum);
}

void Keypad::setNumberOfDecimals(unsigned int decimals)
{
    d->fader->setNumberOfDecimals(decimals);
}

} // namespace ko::qtToolkit::widget
