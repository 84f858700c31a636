// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_TOGGLEBUTTONGROUP_H
#define KO_QTTOOLKIT_WIDGET_TOGGLEBUTTONGROUP_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>

#include <memory>

namespace ko::qtToolkit::widget {

class ToggleButtonGroupPrivate;

/**
 * \brief An on/off switch made of two exclusive buttons, "OFF" on top and "ON" below.
 *
 * A new switch is off. The off button has the id 0 and the on button the id 1, so the
 * inherited buttonToggled() reports changes of either as well as onToggled() and offToggled().
 */
class KO_QTTOOLKIT_EXPORT ToggleButtonGroup : public ButtonGroup
{
    Q_OBJECT

public:
    /**
     * \brief A switch that is off.
     * \param parent the owner of the switch, or null
     */
    explicit ToggleButtonGroup(QWidget *parent = nullptr);
    ~ToggleButtonGroup() override;

    /**
     * \brief Whether the on button is checked.
     */
    bool isOn() const;

    /**
     * \brief Whether the off button is checked.
     */
    bool isOff() const;

    /**
     * \brief Switches on (\a on true) or off, without emitting this group's signals.
     *
     * onToggled(), offToggled() and buttonToggled() stay silent; the buttons' own toggled()
     * signals still fire.
     */
    void setOn(bool on);

    /**
     * \brief Switches off (\a off true) or on, without emitting this group's signals.
     *
     * The mirror image of setOn().
     */
    void setOff(bool off);

    /**
     * \brief Changes the caption of the on button.
     */
    void setOnText(const QString &text);

    /**
     * \brief Changes the caption of the off button.
     */
    void setOffText(const QString &text);

Q_SIGNALS:
    /**
     * \brief The on button was checked (\a on true) or unchecked.
     */
    void onToggled(bool on);

    /**
     * \brief The off button was checked (\a off true) or unchecked.
     */
    void offToggled(bool off);

private:
    std::unique_ptr<ToggleButtonGroupPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
