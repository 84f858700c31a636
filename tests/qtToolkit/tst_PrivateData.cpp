// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Every installed class keeps its state behind one pointer: a member added to an installed header
// changes the size of the class, and with it the binary interface of every application built
// against the library. Each class is measured against its base, so any added member, in any
// class, fails here.

#include <ko/qtToolkit/behavior/Draggable.h>
#include <ko/qtToolkit/charts/AxisNotifier.h>
#include <ko/qtToolkit/charts/AxisTicker.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>
#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/common/ExternalMessageBox.h>
#include <ko/qtToolkit/common/IntValidator.h>
#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/singleton/ExternalMessageBox.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
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
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <QtCharts/QLogValueAxis>
#include <QtCharts/QValueAxis>

#include <cstddef>
#include <type_traits>
#include <vector>

namespace {

using namespace ko::qtToolkit;

// Stand-ins for the bases of classes that have none: nothing at all, or only a virtual table.
struct NoBase
{
};
struct VirtualRoot
{
    virtual ~VirtualRoot() = default;
};

template<typename Base>
constexpr std::size_t sizeOfBase()
{
    if constexpr (std::is_same_v<Base, NoBase>)
        return 0;
    else
        return sizeof(Base);
}

enum Pointer { BasePointerOnly, OwnPointer };

struct Row
{
    const char *name;
    std::size_t size;
    std::size_t expected;
};

// The class as its base leaves it, plus its own private pointer if it has one.
template<typename Class, typename Base>
Row row(const char *name, Pointer pointer)
{
    if constexpr (std::is_same_v<Base, VirtualRoot>)
        static_assert(std::is_polymorphic_v<Class>, "a class without base but with virtuals");
    else if constexpr (std::is_same_v<Base, NoBase>)
        static_assert(!std::is_polymorphic_v<Class>, "a class without base and without virtuals");
    else
        static_assert(std::is_base_of_v<Base, Class>, "the base named for the row");
    return {name, sizeof(Class), sizeOfBase<Base>() + (pointer == OwnPointer ? sizeof(void *) : 0)};
}

// Every class of the installed headers, named with its namespace below ko::qtToolkit.
std::vector<Row> rows()
{
    namespace lwb = widget::listWithButtons;
    return {
        row<behavior::Draggable, NoBase>("behavior::Draggable", OwnPointer),

        row<charts::AxisNotifier, QObject>("charts::AxisNotifier", BasePointerOnly),
        row<charts::AxisTicker, VirtualRoot>("charts::AxisTicker", OwnPointer),
        row<charts::CustomAxisTicker, charts::AxisTicker>("charts::CustomAxisTicker", OwnPointer),
        row<charts::LogarithmicAxisTicker, charts::AxisTicker>("charts::LogarithmicAxisTicker", OwnPointer),
        // The axes extend the private object of their Qt Charts base through its d_ptr.
        row<charts::LinearAxis, QtCharts::QValueAxis>("charts::LinearAxis", BasePointerOnly),
        row<charts::LogarithmicAxis, QtCharts::QLogValueAxis>("charts::LogarithmicAxis", BasePointerOnly),
        row<charts::FrequencyAxis, charts::LogarithmicAxis>("charts::FrequencyAxis", BasePointerOnly),

        row<common::DoubleValidator, QDoubleValidator>("common::DoubleValidator", BasePointerOnly),
        row<common::IntValidator, QIntValidator>("common::IntValidator", BasePointerOnly),
        row<common::ExternalMessageBox, VirtualRoot>("common::ExternalMessageBox", BasePointerOnly),

        row<dialog::Keypad, QDialog>("dialog::Keypad", OwnPointer),

        row<singleton::ExternalMessageBox, QObject>("singleton::ExternalMessageBox", OwnPointer),
        row<singleton::Keypad, QObject>("singleton::Keypad", OwnPointer),
        row<singleton::TextEntry, QObject>("singleton::TextEntry", OwnPointer),

        row<widget::Button, QPushButton>("widget::Button", BasePointerOnly),
        row<widget::ButtonGroup, QWidget>("widget::ButtonGroup", OwnPointer),
        row<widget::ComboBox, QComboBox>("widget::ComboBox", OwnPointer),
        row<widget::ElidedButton, widget::Button>("widget::ElidedButton", OwnPointer),
        row<widget::ElidedLabel, QLabel>("widget::ElidedLabel", OwnPointer),
        row<widget::Fader, QSlider>("widget::Fader", OwnPointer),
        row<widget::GenericDataFader, widget::Fader>("widget::GenericDataFader", OwnPointer),
        row<widget::Keypad, QGroupBox>("widget::Keypad", OwnPointer),
        row<widget::LevelMeter, QProgressBar>("widget::LevelMeter", OwnPointer),
        row<widget::LevelMeterNotifier, QObject>("widget::LevelMeterNotifier", BasePointerOnly),
        row<widget::LevelScale, QWidget>("widget::LevelScale", OwnPointer),
        row<widget::ListWidget, QListWidget>("widget::ListWidget", OwnPointer),
        row<widget::TableWidget, QTableWidget>("widget::TableWidget", OwnPointer),
        row<widget::TextEntry, QWidget>("widget::TextEntry", OwnPointer),
        row<widget::ToggleButtonGroup, widget::ButtonGroup>("widget::ToggleButtonGroup", OwnPointer),

        row<lwb::ListWrapper, QWidget>("widget::listWithButtons::ListWrapper", OwnPointer),
        row<lwb::WidgetBase, lwb::ListWrapper>("widget::listWithButtons::WidgetBase", OwnPointer),
        row<lwb::NavigatorButton, QPushButton>("widget::listWithButtons::NavigatorButton", OwnPointer),
        row<lwb::NavigatorButtonNext, lwb::NavigatorButton>("widget::listWithButtons::NavigatorButtonNext",
                                                            BasePointerOnly),
        row<lwb::NavigatorButtonPrevious, lwb::NavigatorButton>(
            "widget::listWithButtons::NavigatorButtonPrevious", BasePointerOnly),
    };
}

} // namespace

class tst_PrivateData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyThePrivatePointer_data()
    {
        QTest::addColumn<std::size_t>("size");
        QTest::addColumn<std::size_t>("expected");
        for (const Row &row : rows())
            QTest::newRow(row.name) << row.size << row.expected;
    }

    void onlyThePrivatePointer()
    {
        QFETCH(std::size_t, size);
        QFETCH(std::size_t, expected);
        QCOMPARE(size, expected);
    }

    // The rows are written by hand: an exported class of an installed header without a row would
    // escape the size check.
    void everyInstalledClassHasARow()
    {
        QSet<QString> listed;
        for (const Row &row : rows())
            listed.insert(QString::fromLatin1(row.name));

        const QDir root(QStringLiteral(KO_TEST_HEADER_DIR));
        const QRegularExpression exported(QStringLiteral("^class KO_QTTOOLKIT_EXPORT (\\w+)"),
                                          QRegularExpression::MultilineOption);
        QSet<QString> found;
        QDirIterator headers(root.path(), {QStringLiteral("*.h")}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (headers.hasNext()) {
            const QString path = headers.next();
            if (path.endsWith(QLatin1String("_p.h")))
                continue;
            QFile file(path);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
            QString scope = root.relativeFilePath(QFileInfo(path).path());
            scope.replace(QLatin1Char('/'), QLatin1String("::"));
            auto matches = exported.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext())
                found.insert(scope + QLatin1String("::") + matches.next().captured(1));
        }
        QVERIFY(!found.isEmpty());
        for (const QString &name : qAsConst(found))
            QVERIFY2(listed.contains(name), qPrintable(name + QLatin1String(" has no row")));
        for (const QString &name : qAsConst(listed))
            QVERIFY2(found.contains(name),
                     qPrintable(name + QLatin1String(" is in no installed header")));
    }
};

QTEST_APPLESS_MAIN(tst_PrivateData)
#include "tst_PrivateData.moc"
