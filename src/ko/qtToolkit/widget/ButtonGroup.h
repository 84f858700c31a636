// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_BUTTONGROUP_H
#define KO_QTTOOLKIT_WIDGET_BUTTONGROUP_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QList>
#include <QWidget>

#include <memory>

class QAbstractButton;

namespace ko::qtToolkit::widget {

class Button;
class ButtonGroupPrivate;

/**
 * \brief A vertical stack of mutually exclusive checkable buttons.
 *
 * Buttons stack from the top without gaps, however tall the group is. At most one button is
 * checked, and clicking the checked one does not uncheck it. The first button carries the
 * dynamic property "top" = true and the last one "bottom" = true (all others false on both),
 * so that the style sheet can round the outer corners of the stack.
 */
class KO_QTTOOLKIT_EXPORT ButtonGroup : public QWidget
{
    Q_OBJECT

public:
    /**
     * \brief An empty group.
     * \param parent the owner of the group, or null
     */
    explicit ButtonGroup(QWidget *parent = nullptr);
    ~ButtonGroup() override;

    /**
     * \brief Appends a new checkable button captioned \a text at the bottom of the stack.
     *
     * The button's id is the number of buttons the group held before, so ids count from 0.
     * When it joins \a checked, the button that was checked so far is unchecked. The new
     * button gets no "TestID": call setTestID() after the last addButton().
     * \return the new button, owned by the group
     */
    Button *addButton(const QString &text, bool checked = false);

    /**
     * \brief The buttons of the group, from top to bottom.
     */
    QList<QAbstractButton *> buttons() const;

    /**
     * \brief The button with the id \a id, or null when there is none.
     */
    QAbstractButton *button(int id) const;

    /**
     * \brief Sets the automation identifiers of the group and of its present buttons.
     *
     * The group's "TestID" becomes \a id, each button's "TestID" becomes
     * <tt>QStringLiteral("%1.%2").arg(id).arg(text)</tt> with the button's current text (a
     * group "Gain" with a button "On" gives "Gain.On"). The identifiers are composed now:
     * buttons added later get none, and later caption changes do not rename them.
     */
    void setTestID(const QString &id);

Q_SIGNALS:
    /**
     * \brief The button with the id \a id was checked or unchecked.
     */
    void buttonToggled(int id, bool checked);

private:
    std::unique_ptr<ButtonGroupPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
