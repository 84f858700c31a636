// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include "WidgetTable.h"

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelScale.h>
#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/TableWidget.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>
#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>

#include <iterator>

namespace ko::qtToolkit::designer {

namespace {

namespace w = ko::qtToolkit::widget;

// Most widgets are built as uic builds them, from the parent alone.
template<typename Widget>
QWidget *createPlain(QWidget *parent, bool)
{
    return new Widget(parent);
}

QWidget *createGenericDataFader(QWidget *parent, bool)
{
    return new w::GenericDataFader(Qt::Vertical, parent);
}

QWidget *createListWrapper(QWidget *parent, bool)
{
    return new w::listWithButtons::ListWrapper(QStringLiteral("listWrapper"), parent);
}

// TableWidget leaves the size of its header sections to a subclass; this one gives sections
// sized for a finger.
class PreviewTableWidget : public w::TableWidget
{
public:
    using w::TableWidget::TableWidget;

    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? QSize(100, 40) : QSize(60, 40);
    }
};

// An empty group shows nothing at all; in Designer it shows two buttons to be seen and placed.
QWidget *createButtonGroup(QWidget *parent, bool preview)
{
    auto *group = new w::ButtonGroup(parent);
    if (preview) {
        group->addButton(QStringLiteral("Button 1"), true);
        group->addButton(QStringLiteral("Button 2"));
    }
    return group;
}

#define KO_GEOMETRY(width, height)                                                                  \
    "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>" #width "</width><height>" #height \
    "</height></rect></property>"

const WidgetEntry table[] = {
    {"ko::qtToolkit::widget::Fader", "ko/qtToolkit/widget/Fader.h",
     ":/ko/qtToolkit/designer/fader.svg",
     "A fader that never jumps when its groove is tapped",
     "A vertical slider for touch screens. A tap on the groove leaves the value as it is; only a "
     "drag that starts on the handle moves it. A double tap can reset it to its default value.",
     "fader",
     KO_GEOMETRY(17, 200) "<property name=\"orientation\"><enum>Qt::Vertical</enum></property>",
     createPlain<w::Fader>},
    {"ko::qtToolkit::widget::GenericDataFader", "ko/qtToolkit/widget/GenericDataFader.h",
     ":/ko/qtToolkit/designer/genericDataFader.svg",
     "A fader over a floating-point range with a fixed number of decimals",
     "A Fader whose value is a float (the property GenericFaderData), labelled with its range. "
     "Set the data range and the decimals in code: setMinimumData(), setMaximumData(), "
     "setNumberOfDecimals().",
     "genericDataFader",
     KO_GEOMETRY(17, 200) "<property name=\"orientation\"><enum>Qt::Vertical</enum></property>",
     createGenericDataFader},
    {"ko::qtToolkit::widget::LevelMeter", "ko/qtToolkit/widget/LevelMeter.h",
     ":/ko/qtToolkit/designer/levelMeter.svg",
     "A level meter in three colour zones, cheap enough to show by the dozen",
     "A meter for levels in dB (-60 to +15 by default), with medium and high thresholds, an "
     "optional peak hold and clip latch. Feed it with setLevel().",
     "levelMeter",
     KO_GEOMETRY(24, 200) "<property name=\"orientation\"><enum>Qt::Vertical</enum></property>",
     createPlain<w::LevelMeter>},
    {"ko::qtToolkit::widget::LevelScale", "ko/qtToolkit/widget/LevelScale.h",
     ":/ko/qtToolkit/designer/levelScale.svg",
     "The decibel marks and labels of a level meter's range",
     "Drawn beside a LevelMeter of the same length, with the meter's level range (setLevelRange()) "
     "and orientation; the label step keeps labels apart. Mirrored, the marks start at the right "
     "edge, for a scale before the meter.",
     "levelScale",
     KO_GEOMETRY(40, 200),
     createPlain<w::LevelScale>},
    {"ko::qtToolkit::widget::TextEntry", "ko/qtToolkit/widget/TextEntry.h",
     ":/ko/qtToolkit/designer/textEntry.svg",
     "A single-line entry field for touch panels, numeric by default",
     "Shows its committed text followed by its suffix; Return, Enter, Tab or leaving the field "
     "commits an edit. With singleton::TextEntry's keypad switch on, a touch opens the keypad.",
     "textEntry",
     KO_GEOMETRY(176, 32),
     createPlain<w::TextEntry>},
    {"ko::qtToolkit::widget::Keypad", "ko/qtToolkit/widget/Keypad.h",
     ":/ko/qtToolkit/designer/keypad.svg",
     "An on-screen numeric keypad: a display, fifteen keys and a fader",
     "The keys 0 to 9, \".\", \"-\", \"K\" (thousands), \"DEL\" and \"OK\" build a number in "
     "the display; \"OK\" emits accepted().",
     "keypad",
     KO_GEOMETRY(346, 200),
     createPlain<w::Keypad>},
    {"ko::qtToolkit::widget::Button", "ko/qtToolkit/widget/Button.h",
     ":/ko/qtToolkit/designer/button.svg",
     "A push button that never takes keyboard focus",
     "A QPushButton for touch screens: touching it leaves the focus in the entry being edited, "
     "and the Tab key skips it.",
     "button",
     KO_GEOMETRY(120, 48) "<property name=\"text\"><string>Button</string></property>",
     createPlain<w::Button>},
    {"ko::qtToolkit::widget::ButtonGroup", "ko/qtToolkit/widget/ButtonGroup.h",
     ":/ko/qtToolkit/designer/buttonGroup.svg",
     "A vertical stack of mutually exclusive buttons",
     "Add the buttons in code with addButton(); the two buttons shown in Designer are only "
     "placeholders and are not part of the form.",
     "buttonGroup",
     KO_GEOMETRY(120, 120),
     createButtonGroup},
    {"ko::qtToolkit::widget::ToggleButtonGroup", "ko/qtToolkit/widget/ToggleButtonGroup.h",
     ":/ko/qtToolkit/designer/toggleButtonGroup.svg",
     "An on/off switch made of two exclusive buttons",
     "\"OFF\" on top and \"ON\" below; a new switch is off. Connect to onToggled() or "
     "offToggled().",
     "toggleButtonGroup",
     KO_GEOMETRY(100, 60),
     createPlain<w::ToggleButtonGroup>},
    {"ko::qtToolkit::widget::ElidedLabel", "ko/qtToolkit/widget/ElidedLabel.h",
     ":/ko/qtToolkit/designer/elidedLabel.svg",
     "A label that elides text too long for it",
     "A QLabel that shortens the text it shows to its width; text() keeps the full text.",
     "elidedLabel",
     KO_GEOMETRY(120, 24) "<property name=\"text\"><string>ElidedLabel</string></property>",
     createPlain<w::ElidedLabel>},
    {"ko::qtToolkit::widget::ElidedButton", "ko/qtToolkit/widget/ElidedButton.h",
     ":/ko/qtToolkit/designer/elidedButton.svg",
     "A button that elides a caption too long for it",
     "A Button that shortens its text with an ellipsis to the width it is given.",
     "elidedButton",
     KO_GEOMETRY(120, 48) "<property name=\"text\"><string>ElidedButton</string></property>",
     createPlain<w::ElidedButton>},
    {"ko::qtToolkit::widget::ComboBox", "ko/qtToolkit/widget/ComboBox.h",
     ":/ko/qtToolkit/designer/comboBox.svg",
     "A combo box for touch panels",
     "A QComboBox that takes no focus and ignores the mouse wheel; its pop-up list shows the "
     "current entry in bold and fading bands where there is more to scroll.",
     "comboBox",
     KO_GEOMETRY(160, 40),
     createPlain<w::ComboBox>},
    {"ko::qtToolkit::widget::ListWidget", "ko/qtToolkit/widget/ListWidget.h",
     ":/ko/qtToolkit/designer/listWidget.svg",
     "A single-choice list whose rows are buttons",
     "A QListWidget for touch screens; add rows in code with addItem(), which takes a checkable "
     "button per row. The current row and the checked button follow each other.",
     "listWidget",
     KO_GEOMETRY(200, 240),
     createPlain<w::ListWidget>},
    {"ko::qtToolkit::widget::TableWidget", "ko/qtToolkit/widget/TableWidget.h",
     ":/ko/qtToolkit/designer/tableWidget.svg",
     "A table for touch screens",
     "A QTableWidget whose header sections may hold widgets. The class is abstract: in a form "
     "compiled with uic, promote it to the application's subclass, which implements "
     "headerSectionSize(). Designer and QUiLoader create a table with 100 x 40 column heads "
     "and 60 x 40 row heads.",
     "tableWidget",
     KO_GEOMETRY(320, 240),
     createPlain<PreviewTableWidget>},
    {"ko::qtToolkit::widget::listWithButtons::ListWrapper",
     "ko/qtToolkit/widget/listWithButtons/ListWrapper.h",
     ":/ko/qtToolkit/designer/listWrapper.svg",
     "A widget holding a ListWidget, for paging with arrow buttons",
     "Owns a ListWidget (getList()) and forwards its operations; listWithButtons::WidgetBase "
     "lays it out between the navigator buttons.",
     "listWrapper",
     KO_GEOMETRY(200, 240),
     createListWrapper},
};

#undef KO_GEOMETRY

} // namespace

const WidgetEntry *widgetTable()
{
    return table;
}

std::size_t widgetTableSize()
{
    return std::size(table);
}

} // namespace ko::qtToolkit::designer
