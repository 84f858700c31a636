// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_DESIGNER_WIDGETTABLE_H
#define KO_QTTOOLKIT_DESIGNER_WIDGETTABLE_H

#include <cstddef>

class QWidget;

namespace ko::qtToolkit::designer {

/**
 * \brief What Designer shows and creates for one widget of the library.
 *
 * Every string is Latin-1 text compiled into the plugin.
 */
struct WidgetEntry
{
    /// \brief The class with its namespaces, as uic writes it: "ko::qtToolkit::widget::Fader".
    const char *className;
    /// \brief The header as an application includes it: "ko/qtToolkit/widget/Fader.h".
    const char *includeFile;
    /// \brief The icon's path in the plugin's resources.
    const char *icon;
    /// \brief One line for the widget box's tool tip.
    const char *toolTip;
    /// \brief A few sentences for "What's This?".
    const char *whatsThis;
    /// \brief The object name Designer numbers for each new widget of the class.
    const char *objectName;
    /// \brief The <property> elements a freshly dropped widget gets, geometry first.
    const char *properties;
    /**
     * \brief Creates the widget; \a parent owns it.
     *
     * \a preview is true inside Designer only: a widget that is empty until the application
     * fills it in code then shows placeholder content, which is not saved into the form.
     */
    QWidget *(*create)(QWidget *parent, bool preview);
};

/// \brief The widgets the plugin offers, in the order of the widget box.
const WidgetEntry *widgetTable();

/// \brief The number of rows of widgetTable().
std::size_t widgetTableSize();

} // namespace ko::qtToolkit::designer

#endif
