// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A program using the installed library as an application would: it prints the library's
// interface version and the first line of its style sheet, builds one of every public class,
// puts the chart axes into a real QChart and lays it out, and exits with 0 when all went well.
#include <ko/qtToolkit/behavior/Draggable.h>
#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartStyle.h>
#include <ko/qtToolkit/charts/CustomAxisTicker.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxis.h>
#include <ko/qtToolkit/charts/LogarithmicAxisTicker.h>
#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/common/ExternalMessageBox.h>
#include <ko/qtToolkit/common/IntValidator.h>
#include <ko/qtToolkit/dialog/Keypad.h>
#include <ko/qtToolkit/qtToolkit.h>
#include <ko/qtToolkit/singleton/ExternalMessageBox.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/ElidedText.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/TableWidget.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>
#include <ko/qtToolkit/widget/listWithButtons/ListWrapper.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonNext.h>
#include <ko/qtToolkit/widget/listWithButtons/NavigatorButtonPrevious.h>

#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTextStream>
#include <QVBoxLayout>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

#include <cmath>

namespace {

class MessageBox : public ko::qtToolkit::common::ExternalMessageBox
{
public:
    int confirm(QWidget &, const QString &, const QString &, QMessageBox::Icon) const override { return 1; }
    int information(QWidget &, const QString &, const QString &, QMessageBox::Icon) const override { return 1; }
};

class Table : public ko::qtToolkit::widget::TableWidget
{
protected:
    QSize headerSectionSize(Qt::Orientation orientation) const override
    {
        return orientation == Qt::Horizontal ? QSize(80, 32) : QSize(48, 32);
    }
};

} // namespace

int main(int argc, char *argv[])
{
    using namespace ko::qtToolkit;
    QApplication app(argc, argv);
    QTextStream out(stdout);
    out << "interface version: " << getInterfaceVersion() << '\n';

    QFile styleSheet(QStringLiteral(":/qtToolkit.qss"));
    if (!styleSheet.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QTextStream(stderr) << "cannot read :/qtToolkit.qss\n";
        return 1;
    }
    const QByteArray text = styleSheet.readAll();
    out << "qtToolkit.qss: " << text.size() << " bytes, starting " << text.left(text.indexOf('\n')) << '\n';
    app.setStyleSheet(QString::fromUtf8(text));

    // One of every widget, in one window.
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *fader = new widget::Fader(Qt::Vertical);
    fader->setRange(0, 100);
    fader->setValue(40);
    auto *dataFader = new widget::GenericDataFader(Qt::Horizontal);
    dataFader->setMinimumData(-10.0f);
    dataFader->setMaximumData(10.0f);
    dataFader->setData(2.5f);
    auto *meter = new widget::LevelMeter;
    meter->setLevel(0.5f);
    auto *entry = new widget::TextEntry(QStringLiteral("12.5"));
    auto *keypad = new widget::Keypad;
    keypad->setDynamicWidget(entry);
    auto *buttons = new widget::ToggleButtonGroup;
    buttons->addButton(QStringLiteral("On"), true);
    buttons->addButton(QStringLiteral("Off"));
    auto *group = new widget::ButtonGroup;
    group->addButton(QStringLiteral("A"));
    auto *combo = new widget::ComboBox;
    combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
    auto *label = new widget::ElidedLabel(QStringLiteral("a label too long to be shown in full"));
    auto *elidedButton = new widget::ElidedButton(QStringLiteral("a button too long to be shown in full"));
    auto *list = new widget::ListWidget;
    list->addItems({QStringLiteral("first"), QStringLiteral("second")});
    auto *table = new Table;
    table->setRowCount(2);
    table->setColumnCount(2);
    auto *wrapper = new widget::listWithButtons::ListWrapper(QStringLiteral("list"));
    wrapper->addItem(new widget::Button(QStringLiteral("item")));
    QScrollBar scrollBar(Qt::Vertical);
    auto *previous = new widget::listWithButtons::NavigatorButtonPrevious(
        QStringLiteral("previous"), widget::listWithButtons::Direction::Vertical, scrollBar);
    auto *next = new widget::listWithButtons::NavigatorButtonNext(
        QStringLiteral("next"), widget::listWithButtons::Direction::Vertical, scrollBar);
    for (QWidget *w : {static_cast<QWidget *>(fader), static_cast<QWidget *>(dataFader), static_cast<QWidget *>(meter),
                       static_cast<QWidget *>(entry), static_cast<QWidget *>(keypad), static_cast<QWidget *>(buttons),
                       static_cast<QWidget *>(group), static_cast<QWidget *>(combo), static_cast<QWidget *>(label),
                       static_cast<QWidget *>(elidedButton), static_cast<QWidget *>(list), static_cast<QWidget *>(table),
                       static_cast<QWidget *>(wrapper), static_cast<QWidget *>(previous), static_cast<QWidget *>(next)})
        layout->addWidget(w);
    behavior::Draggable draggable(window);
    draggable.setConstrained(false);
    common::IntValidator intValidator(0, 10);
    common::DoubleValidator doubleValidator(0.0, 1.0, 2);
    MessageBox messageBox;
    singleton::ExternalMessageBox::instance()->setImplementation(&messageBox);
    singleton::TextEntry::instance()->setUseKeypad(false);
    singleton::Keypad::instance()->setText(QStringLiteral("1"));
    dialog::Keypad keypadDialog;
    keypadDialog.setText(QStringLiteral("2"));
    const QString elided = widget::elidedText(label->text(), *label, 4, widget::EllipsisMode::Elide, QString());

    // The axes in a real chart: a linear axis in dB below a frequency axis, a logarithmic one
    // with its own ticker on the right.
    auto *chart = new QtCharts::QChart;
    auto *series = new QtCharts::QLineSeries;
    for (double f = 20.0; f <= 20000.0; f *= 2.0)
        series->append(f, 6.0 * std::sin(f / 1000.0));
    chart->addSeries(series);
    auto *frequency = new charts::FrequencyAxis;
    auto *level = new charts::LinearAxis;
    level->setRange(-12.0, 12.0);
    auto *customTicker = new charts::CustomAxisTicker;
    customTicker->addTick(0.0);
    customTicker->setTickLabel(0.0, QStringLiteral("0 dB"));
    level->setTicker(customTicker);
    auto *logarithmic = new charts::LogarithmicAxis;
    logarithmic->setRange(1.0, 1000.0);
    logarithmic->setTicker(new charts::LogarithmicAxisTicker);
    chart->addAxis(frequency, Qt::AlignBottom);
    chart->addAxis(level, Qt::AlignLeft);
    chart->addAxis(logarithmic, Qt::AlignRight);
    series->attachAxis(frequency);
    series->attachAxis(level);
    charts::style::applyTo(chart);
    charts::style::applyTo(frequency);
    charts::style::applyTo(chart->legend());
    QtCharts::QChartView view(chart);
    view.resize(640, 400);
    view.show();
    layout->addWidget(new QWidget);
    window.show();
    QApplication::processEvents();

    charts::AxisTicker ticker;
    QVector<double> ticks;
    QVector<double> subTicks;
    ticker.generate(0.0, 10.0, ticks, subTicks);
    const double pixel = charts::coordToPixel(*level, 0.0);
    const double value = charts::pixelToCoord(*level, pixel);
    out << "axes: " << ticks.size() << " ticks from 0 to 10, 0 dB at pixel " << pixel << ", label "
        << charts::formatLabel(*level, value, QStringLiteral("%.1f")) << ", elided label \"" << elided << "\"\n";

    const bool ok = isCompatibleWithInterfaceVersion(101) && !ticks.isEmpty() && std::isfinite(pixel)
                    && std::abs(value) < 1e-6 && pixel > 0.0;
    return ok ? 0 : 1;
}
