// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_DIRECTION_H
#define KO_QTTOOLKIT_WIDGET_LISTWITHBUTTONS_DIRECTION_H

namespace ko::qtToolkit::widget::listWithButtons {

/**
 * \brief The direction in which a list with navigator buttons is laid out and scrolled.
 */
enum class Direction {
    Horizontal = 1, ///< buttons left and right of the list, which scrolls horizontally
    Vertical,       ///< buttons above and below the list, which scrolls vertically
};

} // namespace ko::qtToolkit::widget::listWithButtons

#endif
