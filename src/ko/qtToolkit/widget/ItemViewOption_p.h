// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_ITEMVIEWOPTION_P_H
#define KO_QTTOOLKIT_WIDGET_ITEMVIEWOPTION_P_H

#include <QStyleOptionViewItem>
#include <QtGlobal>

namespace ko::qtToolkit::widget {

/**
 * \brief An item view of type View whose items are all drawn with options adjusted by
 *        adjustItemOption().
 *
 * Qt 5 asks the view for the options with viewOptions(), Qt 6 has it fill them in with
 * initViewItemOption(); this base overrides whichever Qt has and hands the options on.
 */
template<typename View>
class ItemViewOption : public View
{
public:
    using View::View;

protected:
    /// Changes \a option after the view has filled it in.
    virtual void adjustItemOption(QStyleOptionViewItem &option) const = 0;

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    void initViewItemOption(QStyleOptionViewItem *option) const override
    {
        View::initViewItemOption(option);
        adjustItemOption(*option);
    }
#else
    QStyleOptionViewItem viewOptions() const override
    {
        QStyleOptionViewItem option = View::viewOptions();
        adjustItemOption(option);
        return option;
    }
#endif
};

} // namespace ko::qtToolkit::widget

#endif
