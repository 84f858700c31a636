// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_NAVIGATORBUTTON_H

#include <ko/qtToolkit/qtToolkit_export.h>
#include <ko/qtToolkit/widget/listWithButtons/Direction.h>

#include <QPushButton>

#include <functional>
#include <memory>

class QScrollBar;

namespace ko::qtToolkit::widget::listWithButtons {

class NavigatorButtonPrivate;

/**
 * \brief A push button that steps a scroll bar, for scrolling a list on a touch screen.
 *
 * A press does what the button's DirectionSpecifics say to the scroll bar. The button is enabled
 * exactly while the scroll bar's value differs from the specifics' limit, and it can hide itself
 * while the scroll bar has nothing to scroll. NavigatorButtonPrevious and NavigatorButtonNext are
 * the two kinds a list uses; the style sheet draws them through their "arrowType" property.
 */
class KO_QTTOOLKIT_EXPORT NavigatorButton : public QPushButton
{
    Q_OBJECT

public:
    /**
     * \brief What a navigator button does to its scroll bar.
     */
    struct DirectionSpecifics
    {
        /// The direction of the list; decides the button's size policy.
        Direction direction;
        /// What one press does to the scroll bar.
        std::function<void(QScrollBar &)> scroll;
        /// The scroll-bar value at which the button has nothing left to do.
        std::function<int(QScrollBar &)> limit;
    };

    /**
     * \brief Builds a button driving \a scrollBar.
     *
     * Both callables of \a specifics must be set: calling an empty one throws
     * std::bad_function_call, and the limit is asked for at once. The button is made visible
     * (see showOrHideNavigatorIfNeeded()), so give it its parent here.
     * \param testId the button's "TestID".
     * \param scrollBar the scroll bar the button steps; not owned. When it belongs to a scroll area
     *        (a list) that later replaces it, the button follows the area's new scroll bar; while
     *        it has none, the button is disabled and a press does nothing.
     * \param specifics what a press does and where the button stops.
     * \param parent the parent widget, which owns the button.
     */
    NavigatorButton(const QString &testId, QScrollBar &scrollBar, DirectionSpecifics specifics,
                    QWidget *parent = nullptr);
    ~NavigatorButton() override;

    /**
     * \brief changeEnabledState(), then showOrHideNavigatorIfNeeded().
     *
     * Runs whenever the scroll bar's range or value changes.
     */
    void updateNavigator();

    /**
     * \brief Enables the button exactly when the scroll bar's value differs from the limit.
     */
    void changeEnabledState();

    /**
     * \brief Shows or hides the button.
     *
     * With setHideIfScrollBarWouldHide() on, the button is visible exactly when the scroll bar
     * has a range to scroll; with it off, the button is made visible every time, even when the
     * application had hidden it.
     */
    void showOrHideNavigatorIfNeeded();

    /**
     * \brief Whether the button hides while the scroll bar has nothing to scroll.
     *
     * Takes effect at the next change of the scroll bar's range or value, or at the next call
     * of showOrHideNavigatorIfNeeded(), not at once. Off by default.
     */
    void setHideIfScrollBarWouldHide(bool hide);

private:
    std::unique_ptr<NavigatorButtonPrivate> const d;
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
