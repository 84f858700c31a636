// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Buttons and labels: button groups of several sizes, the ON/OFF switch, captions that shorten
// as their container narrows, and touch combo boxes with long lists.

#include "GalleryPage.h"

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/ElidedText.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>

#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

using namespace ko::qtToolkit::widget;

// A vertical group with \a captions, reporting what it toggles in \a log.
ButtonGroup *createGroup(const QString &id, const QStringList &captions, int checked, QLabel *log)
{
    auto *group = new ButtonGroup;
    for (int i = 0; i < captions.size(); ++i)
        group->addButton(captions.at(i), i == checked);
    group->setTestID(id);
    group->setMinimumWidth(110);
    QObject::connect(group, &ButtonGroup::buttonToggled, log, [id, group, log](int buttonId, bool isChecked) {
        if (isChecked)
            log->setText(QStringLiteral("%1: %2 (id %3)").arg(id, group->button(buttonId)->text()).arg(buttonId));
    });
    return group;
}

QWidget *createGroups()
{
    auto *box = new QGroupBox(QStringLiteral("Button groups"));
    auto *layout = new QGridLayout(box);
    auto *log = new QLabel(QStringLiteral("Touch a button"));

    layout->addWidget(createGroup(QStringLiteral("Meter"), {QStringLiteral("Peak"), QStringLiteral("RMS")}, 0, log),
                      0, 0);
    layout->addWidget(createGroup(QStringLiteral("Filter"),
                                  {QStringLiteral("Low cut"), QStringLiteral("Band"), QStringLiteral("High cut")}, 1,
                                  log),
                      0, 1);
    layout->addWidget(createGroup(QStringLiteral("Input"),
                                  {QStringLiteral("Mic 1"), QStringLiteral("Mic 2"), QStringLiteral("Line 1"),
                                   QStringLiteral("Line 2"), QStringLiteral("USB")},
                                  4, log),
                      0, 2);
    layout->addWidget(log, 1, 0, 1, 3);
    layout->setRowStretch(0, 1);
    return box;
}

QWidget *createSwitches()
{
    auto *box = new QGroupBox(QStringLiteral("Switches and buttons"));
    auto *layout = new QGridLayout(box);

    auto *phantom = new ToggleButtonGroup;
    phantom->setTestID(QStringLiteral("Phantom"));
    auto *phantomState = new QLabel(QStringLiteral("48 V off"));
    QObject::connect(phantom, &ToggleButtonGroup::onToggled, phantomState, [phantomState](bool on) {
        phantomState->setText(on ? QStringLiteral("48 V on") : QStringLiteral("48 V off"));
    });

    // A checked "critical" button turns red under the style sheet.
    auto *mute = new ToggleButtonGroup;
    mute->setOnText(QStringLiteral("MUTED"));
    mute->setOffText(QStringLiteral("LIVE"));
    mute->button(1)->setProperty("class", QStringLiteral("critical"));
    mute->setOn(true);

    // Back to the states the page opened with: phantom power off, the channel muted.
    auto *reset = new Button(QStringLiteral("Reset both"));
    QObject::connect(reset, &QPushButton::clicked, phantom, [phantom, mute, phantomState] {
        // The silent setters do not report, so the label is updated here.
        phantom->setOff(true);
        mute->setOn(true);
        phantomState->setText(QStringLiteral("48 V off"));
    });
    auto *withIcon = new Button(QIcon(QStringLiteral(":/ic_check_box_white_24px.svg")), QStringLiteral("Apply"));
    auto *disabled = new Button(QStringLiteral("Disabled"));
    disabled->setEnabled(false);

    layout->addWidget(new QLabel(QStringLiteral("Phantom power")), 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Channel")), 0, 1);
    layout->addWidget(phantom, 1, 0);
    layout->addWidget(mute, 1, 1);
    layout->addWidget(phantomState, 2, 0);
    layout->addWidget(reset, 3, 0);
    layout->addWidget(withIcon, 3, 1);
    layout->addWidget(disabled, 4, 0, 1, 2);
    layout->setRowStretch(5, 1);
    return box;
}

// Keeps a label showing its full text, or "---" when the text does not fit.
class ReplaceWhenTooLong : public QObject
{
public:
    ReplaceWhenTooLong(QLabel *label, const QString &text)
        : QObject(label)
        , m_text(text)
    {
        label->installEventFilter(this);
        label->setMinimumWidth(30);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize) {
            auto *label = static_cast<QLabel *>(watched);
            label->setText(elidedText(m_text, *label, 4, EllipsisMode::Replace, QStringLiteral("---")));
        }
        return false;
    }

private:
    QString m_text;
};

QWidget *createElisionPane(const QString &channel)
{
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    const QString name = QStringLiteral("%1 - vocal microphone, stage left").arg(channel);

    auto *right = new ElidedLabel(name);
    auto *middle = new ElidedLabel(name);
    middle->setElideMode(Qt::ElideMiddle);
    auto *left = new ElidedLabel(name);
    left->setElideMode(Qt::ElideLeft);
    auto *replaced = new QLabel;
    new ReplaceWhenTooLong(replaced, name);

    auto *button = new ElidedButton(QStringLiteral("Recall %1 settings").arg(channel));
    // A push button would not shrink below its caption's width otherwise.
    button->setMinimumWidth(40);
    auto *iconButton = new ElidedButton(QIcon(QStringLiteral(":/ic_check_box_white_24px.svg")),
                                        QStringLiteral("Store %1 as default").arg(channel));
    iconButton->setMinimumWidth(60);

    // Before their first paint, labels would ask the splitter for their full text's width.
    for (ElidedLabel *label : {right, middle, left}) {
        label->updateCache();
        layout->addWidget(label);
    }
    layout->addWidget(replaced);
    layout->addWidget(button);
    layout->addWidget(iconButton);
    layout->addStretch();
    return pane;
}

QWidget *createElision()
{
    auto *box = new QGroupBox(QStringLiteral("Elided labels and buttons (drag the splitter handles)"));
    auto *layout = new QVBoxLayout(box);
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(12);
    for (const QString &channel : {QStringLiteral("Ch 1"), QStringLiteral("Ch 2"), QStringLiteral("Ch 3")})
        splitter->addWidget(createElisionPane(channel));
    splitter->setSizes({90, 180, 330});
    layout->addWidget(new QLabel(QStringLiteral("right, middle, left, replaced by \"---\", button, button with icon")));
    layout->addWidget(splitter);
    return box;
}

QWidget *createComboBoxes()
{
    auto *box = new QGroupBox(QStringLiteral("Combo boxes (the wheel is ignored)"));
    auto *layout = new QFormLayout(box);

    auto *presets = new ComboBox;
    for (int i = 1; i <= 100; ++i)
        presets->addItem(QStringLiteral("Preset %1").arg(i));
    presets->setCurrentIndex(49);

    auto *inputs = new ComboBox;
    for (int i = 1; i <= 32; ++i)
        inputs->addItem(QStringLiteral("Input %1").arg(i));

    auto *meter = new ComboBox;
    meter->addItems({QStringLiteral("Peak"), QStringLiteral("RMS"), QStringLiteral("LUFS")});

    auto *disabled = new ComboBox;
    disabled->addItem(QStringLiteral("Locked"));
    disabled->setEnabled(false);

    layout->addRow(QStringLiteral("Preset (100)"), presets);
    layout->addRow(QStringLiteral("Input (32)"), inputs);
    layout->addRow(QStringLiteral("Meter (3)"), meter);
    layout->addRow(QStringLiteral("Disabled"), disabled);
    return box;
}

QWidget *createButtonsPage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    QWidget *groups = createGroups();
    QWidget *switches = createSwitches();
    QWidget *comboBoxes = createComboBoxes();
    QWidget *elision = createElision();

    // Three boxes side by side above the elided labels where they fit; on narrower panels the
    // combo boxes take a row of their own and the page scrolls down.
    return gallery::reflowing(page, layout, [layout, groups, switches, comboBoxes, elision](bool narrow) {
        for (QWidget *box : {groups, switches, comboBoxes, elision})
            layout->removeWidget(box);
        layout->addWidget(groups, 0, 0);
        layout->addWidget(switches, 0, 1);
        if (narrow) {
            layout->addWidget(comboBoxes, 1, 0, 1, 2);
            layout->addWidget(elision, 2, 0, 1, 2);
        } else {
            layout->addWidget(comboBoxes, 0, 2);
            layout->addWidget(elision, 1, 0, 1, 3);
        }
        layout->setRowStretch(0, 1);
    });
}

const gallery::PageRegistration registration{40, QStringLiteral("Buttons"), createButtonsPage};

} // namespace
