// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/ToggleButtonGroup.h>

#include <ko/qtToolkit/widget/Button.h>

#include <QSignalBlocker>

namespace ko::qtToolkit::widget {

class ToggleButtonGroupPrivate
{
public:
    Button *on = nullptr;
    Button *off = nullptr;
};

ToggleButtonGroup::ToggleButtonGroup(QWidget *parent)
    : ButtonGroup(parent)
    , d(std::make_unique<ToggleButtonGroupPrivate>())
{
    d->off = addButton(QStringLiteral("OFF"), true);
    d->on = addButton(QStringLiteral("ON"), false);
    connect(d->on, &QAbstractButton::toggled, this, &ToggleButtonGroup::onToggled);
    connect(d->off, &QAbstractButton::toggled, this, &ToggleButtonGroup::offToggled);
}

ToggleButtonGroup::~ToggleButtonGroup() = default;

bool ToggleButtonGroup::isOn() const
{
    return d->on->isChecked();
}

bool ToggleButtonGroup::isOff() const
{
    return d->off->isChecked();
}

// The exclusive group refuses to uncheck its checked button; when the first call asks for that,
// the second one, checking the other button, does the switch.
void ToggleButtonGroup::setOn(bool on)
{
    const QSignalBlocker blocker(this);
    d->on->setChecked(on);
    d->off->setChecked(!on);
}

void ToggleButtonGroup::setOff(bool off)
{
    const QSignalBlocker blocker(this);
    d->off->setChecked(off);
    d->on->setChecked(!off);
}

void ToggleButtonGroup::setOnText(const QString &text)
{
    d->on->setText(text);
}

void ToggleButtonGroup::setOffText(const QString &text)
{
    d->off->setText(text);
}

} // namespace ko::qtToolkit::widget
