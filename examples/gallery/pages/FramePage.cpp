// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// The library frame: every icon of the resource bundle, and Qt's standard widgets as the style
// sheet dresses them.

#include "GalleryPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QWidget *createIconGrid()
{
    auto *box = new QGroupBox(QStringLiteral("Icons of the bundle"));
    auto *grid = new QGridLayout(box);
    const QStringList icons = QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.svg"), QStringLiteral("*.png")},
                                                                   QDir::Files, QDir::Name);
    const int columns = 6;
    for (int i = 0; i < icons.size(); ++i) {
        auto *icon = new QLabel;
        icon->setPixmap(QIcon(QStringLiteral(":/") + icons.at(i)).pixmap(24, 24));
        icon->setFixedSize(32, 32);
        // White icons are meant for the dark button gradient, the others for the light window,
        // whose colour they keep under the dark sheet too.
        icon->setStyleSheet(icons.at(i).contains(QLatin1String("white"))
                                ? QStringLiteral("background: #666666;")
                                : QStringLiteral("background: #efefef;"));
        icon->setToolTip(icons.at(i));
        grid->addWidget(icon, i / columns, i % columns);
    }
    return box;
}

QWidget *createStandardWidgets()
{
    auto *box = new QGroupBox(QStringLiteral("Qt widgets under the style sheet"));
    auto *layout = new QGridLayout(box);

    auto *plain = new QPushButton(QStringLiteral("Push button"));
    auto *checked = new QPushButton(QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *critical = new QPushButton(QStringLiteral("Critical"));
    critical->setCheckable(true);
    critical->setChecked(true);
    critical->setProperty("class", QStringLiteral("critical"));
    auto *disabled = new QPushButton(QStringLiteral("Disabled"));
    disabled->setEnabled(false);
    auto *close = new QPushButton;
    close->setProperty("class", QStringLiteral("close"));
    layout->addWidget(plain, 0, 0);
    layout->addWidget(checked, 0, 1);
    layout->addWidget(critical, 0, 2);
    layout->addWidget(disabled, 0, 3);
    layout->addWidget(close, 0, 4);

    auto *combo = new QComboBox;
    combo->addItems({QStringLiteral("Input 1"), QStringLiteral("Input 2"), QStringLiteral("Input 3")});
    auto *edit = new QLineEdit(QStringLiteral("Line edit"));
    auto *spin = new QDoubleSpinBox;
    spin->setRange(-60, 15);
    spin->setSuffix(QStringLiteral(" dB"));
    layout->addWidget(combo, 1, 0);
    layout->addWidget(edit, 1, 1, 1, 2);
    layout->addWidget(spin, 1, 3, 1, 2);

    auto *check = new QCheckBox(QStringLiteral("Check box"));
    check->setChecked(true);
    auto *tristate = new QCheckBox(QStringLiteral("Partly"));
    tristate->setTristate(true);
    tristate->setCheckState(Qt::PartiallyChecked);
    auto *radio = new QRadioButton(QStringLiteral("Radio"));
    radio->setChecked(true);
    auto *radioOff = new QRadioButton(QStringLiteral("Disabled"));
    radioOff->setEnabled(false);
    layout->addWidget(check, 2, 0);
    layout->addWidget(tristate, 2, 1);
    layout->addWidget(radio, 2, 2);
    layout->addWidget(radioOff, 2, 3);

    auto *slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    layout->addWidget(slider, 3, 0, 1, 5);

    auto *list = new QListWidget;
    for (int i = 1; i <= 20; ++i)
        list->addItem(QStringLiteral("Preset %1").arg(i));
    auto *table = new QTableWidget(8, 6);
    table->setHorizontalHeaderLabels({QStringLiteral("Ch"), QStringLiteral("Gain"), QStringLiteral("Pan"),
                                      QStringLiteral("Mute"), QStringLiteral("Solo"), QStringLiteral("Bus")});
    layout->addWidget(list, 4, 0, 1, 2);
    layout->addWidget(table, 4, 2, 1, 3);
    return box;
}

QWidget *createFramePage()
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    layout->addWidget(createIconGrid());
    layout->addWidget(createStandardWidgets(), 1);
    return page;
}

const gallery::PageRegistration registration{0, QStringLiteral("Frame"), createFramePage};

} // namespace
