// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ButtonGroup.h>

#include <ko/qtToolkit/widget/Button.h>

#include <QButtonGroup>
#include <QStyle>
#include <QVariant>
#include <QVBoxLayout>

namespace ko::qtToolkit::widget {

class ButtonGroupPrivate
{
public:
    explicit ButtonGroupPrivate(ButtonGroup *q)
        : layout(new QVBoxLayout(q))
        , group(new QButtonGroup(q))
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->setAlignment(Qt::AlignTop);
    }

    void updateStyleHooks() const;

    QVBoxLayout *const layout;
    QButtonGroup *const group;
};

namespace {

// A dynamic property only reaches the style sheet when the widget is polished again.
void setStyleHook(QWidget *widget, const char *name, bool value)
{
    if (widget->property(name) == QVariant(value))
        return;
    widget->setProperty(name, value);
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

void ButtonGroupPrivate::updateStyleHooks() const
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        setStyleHook(buttons.at(i), "top", i == 0);
        setStyleHook(buttons.at(i), "bottom", i == buttons.size() - 1);
    }
}

ButtonGroup::ButtonGroup(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ButtonGroupPrivate>(this))
{
}

ButtonGroup::~ButtonGroup() = default;

Button *ButtonGroup::addButton(const QString &text, bool checked)
{
    auto *button = new Button(text);
    button->setCheckable(true);
    button->setChecked(checked);

    const int id = d->group->buttons().size();
    connect(button, &QAbstractButton::toggled, this, [this, id](bool isChecked) {
        Q_EMIT buttonToggled(id, isChecked);
    });

    d->layout->addWidget(button);
    d->group->addButton(button, id);
    d->updateStyleHooks();
    return button;
}

QList<QAbstractButton *> ButtonGroup::buttons() const
{
    return d->group->buttons();
}

QAbstractButton *ButtonGroup::button(int id) const
{
    return d->group->button(id);
}

void ButtonGroup::setTestID(const QString &id)
{
    setProperty("TestID", id);
    const QList<QAbstractButton *> buttons = d->group->buttons();
    for (QAbstractButton *button : buttons)
        button->setProperty("TestID", QStringLiteral("%1.%2").arg(id).arg(button->text()));
}

} // namespace ko::qtToolkit::widget
