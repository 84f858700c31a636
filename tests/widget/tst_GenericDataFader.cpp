// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/GenericDataFader.h>

#include <WidgetSupport.h>
#include <TestSupport.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

using ko::qtToolkit::test::moveHeld;
using ko::qtToolkit::test::sliderHandleRect;
using ko::qtToolkit::widget::Fader;
using ko::qtToolkit::widget::GenericDataFader;

namespace {

// Text drawn the way a data fader labels its range, and nothing else: the reference for what
// the labels must look like.
class LabelProbe : public QWidget
{
public:
    QString top;
    QString bottom;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setFont(QFont(QStringLiteral("plain"), 8));
        painter.setPen(QPen(QBrush(palette().color(QPalette::Mid)), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawText(QRect(width() - 24, 0, 24, 12), Qt::AlignRight, top);
        painter.drawText(QRect(width() - 24, height() - 13, 24, 12), Qt::AlignRight, bottom);
    }
};

QImage rendered(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// A palette whose Mid role stands out from everything the slider paints.
QPalette labelPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Mid, QColor(0xff00ff));
    return palette;
}

float asFloat(const QVariant &value)
{
    return value.value<float>();
}

} // namespace

class tst_GenericDataFader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void constructedWithAParentOnly();
    void dataMapping_data();
    void dataMapping();
    void everyRangeSetterAppliesTheRange();
    void zeroDecimalsScaleOne();
    void dataBeyondRange_data();
    void dataBeyondRange();
    void dragEmitsData();
    void unboundedRangePaints();
    void decimalsBeyondADoubleAreBounded();
    void limitsThatAreNotANumberAreRefused();
    void labels_data();
    void labels();
    void defaultData_data();
    void defaultData();
    void defaultDataFollowsTheDecimals();
    void defaultDataThatIsNotANumberIsRefused();
    void doubleTapResetsData();
    void fullRangeDragSweepsTheData_data();
    void fullRangeDragSweepsTheData();
};

void tst_GenericDataFader::defaults()
{
    GenericDataFader fader(Qt::Vertical);
    QCOMPARE(fader.orientation(), Qt::Vertical);
    QCOMPARE(fader.getMinimumData(), 0.0f);
    QCOMPARE(fader.getMaximumData(), 10.0f);
    QCOMPARE(fader.getNumberOfDecimals(), 1u);
    QCOMPARE(fader.property("TestTag").toString(), QStringLiteral("GenericDataFader"));
    QCOMPARE(fader.property("TestID"), QVariant());
    // A Fader underneath: fixed width and no focus.
    QVERIFY(qobject_cast<Fader *>(&fader));
    QCOMPARE(fader.maximumWidth(), 17);
    QCOMPARE(fader.focusPolicy(), Qt::NoFocus);

    // The constructor leaves QSlider's range while the scale is already 10.
    const QSlider plain;
    QCOMPARE(fader.minimum(), plain.minimum());
    QCOMPARE(fader.maximum(), plain.maximum());
    fader.setValue(37);
    QCOMPARE(fader.getData(), 3.7f);

    GenericDataFader horizontal(Qt::Horizontal);
    QCOMPARE(horizontal.orientation(), Qt::Horizontal);

    const int index = GenericDataFader::staticMetaObject.indexOfProperty("GenericFaderData");
    QVERIFY(index >= 0);
    const QMetaProperty property = GenericDataFader::staticMetaObject.property(index);
    QCOMPARE(property.userType(), int(QMetaType::Float));
    QVERIFY(property.isWritable());
    QCOMPARE(asFloat(fader.property("GenericFaderData")), 3.7f);
    QVERIFY(fader.setProperty("GenericFaderData", 2.5f));
    QCOMPARE(fader.value(), 25);
}

// The constructor forms made with Qt Designer call: a vertical data fader like any other.
void tst_GenericDataFader::constructedWithAParentOnly()
{
    QWidget form;
    auto *fader = new GenericDataFader(&form);
    QCOMPARE(fader->parentWidget(), &form);
    QCOMPARE(fader->orientation(), Qt::Vertical);
    QCOMPARE(fader->getMaximumData(), 10.0f);
    QCOMPARE(fader->getNumberOfDecimals(), 1u);
    QCOMPARE(fader->property("TestTag").toString(), QStringLiteral("GenericDataFader"));
    QSignalSpy data(fader, &GenericDataFader::dataChanged);
    fader->setValue(12);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.first().first().toFloat(), 1.2f);
}

void tst_GenericDataFader::dataMapping_data()
{
    QTest::addColumn<unsigned int>("decimals");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<int>("sliderMinimum");
    QTest::addColumn<int>("sliderMaximum");
    QTest::addColumn<float>("data");
    QTest::addColumn<int>("value");
    QTest::addColumn<float>("result");

    QTest::newRow("two decimals keep 0.25 of 0.257") << 2u << -1.5f << 1.5f << -150 << 150 << 0.257f << 25 << 0.25f;
    QTest::newRow("negative data truncates toward zero") << 2u << -1.5f << 1.5f << -150 << 150 << -0.257f << -25
                                                          << -0.25f;
    QTest::newRow("one decimal") << 1u << 0.0f << 10.0f << 0 << 100 << 7.79f << 77 << 7.7f;
    QTest::newRow("range ends truncate toward zero") << 1u << -2.55f << 2.55f << -25 << 25 << 2.55f << 25 << 2.5f;
    QTest::newRow("three decimals") << 3u << 0.0f << 1.0f << 0 << 1000 << 0.5f << 500 << 0.5f;
    QTest::newRow("attenuation to minus infinity saturates at half the int range")
        << 1u << -std::numeric_limits<float>::infinity() << 0.0f << INT_MIN / 2 << 0 << -6.5f << -65 << -6.5f;
    QTest::newRow("range beyond the int range saturates at half of it")
        << 2u << -3e7f << 3e7f << INT_MIN / 2 << INT_MAX / 2 << 1.5f << 150 << 1.5f;
}

void tst_GenericDataFader::dataMapping()
{
    QFETCH(unsigned int, decimals);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    QFETCH(int, sliderMinimum);
    QFETCH(int, sliderMaximum);
    QFETCH(float, data);
    QFETCH(int, value);
    QFETCH(float, result);

    GenericDataFader fader(Qt::Vertical);
    fader.setNumberOfDecimals(decimals);
    fader.setMinimumData(minimum);
    fader.setMaximumData(maximum);
    QCOMPARE(fader.getNumberOfDecimals(), decimals);
    QCOMPARE(fader.getMinimumData(), minimum);
    QCOMPARE(fader.getMaximumData(), maximum);
    QCOMPARE(fader.minimum(), sliderMinimum);
    QCOMPARE(fader.maximum(), sliderMaximum);

    fader.setData(data);
    QCOMPARE(fader.value(), value);
    QCOMPARE(fader.getData(), result);
}

void tst_GenericDataFader::everyRangeSetterAppliesTheRange()
{
    GenericDataFader fader(Qt::Vertical);
    // Setting the default again still applies the data range to the slider.
    fader.setMinimumData(0.0f);
    QCOMPARE(fader.minimum(), 0);
    QCOMPARE(fader.maximum(), 100);

    GenericDataFader byMaximum(Qt::Vertical);
    byMaximum.setMaximumData(10.0f);
    QCOMPARE(byMaximum.maximum(), 100);

    GenericDataFader byDecimals(Qt::Vertical);
    byDecimals.setNumberOfDecimals(1);
    QCOMPARE(byDecimals.maximum(), 100);

    // A slider range set in between is replaced by the next range setter.
    fader.setRange(-5, 5);
    fader.updateFaderRange();
    QCOMPARE(fader.minimum(), 0);
    QCOMPARE(fader.maximum(), 100);
    fader.setNumberOfDecimals(2);
    QCOMPARE(fader.maximum(), 1000);
}

void tst_GenericDataFader::zeroDecimalsScaleOne()
{
    GenericDataFader fader(Qt::Vertical);
    fader.setMinimumData(-1.5f);
    fader.setMaximumData(1.5f);
    fader.setNumberOfDecimals(0);
    QCOMPARE(fader.minimum(), -1);
    QCOMPARE(fader.maximum(), 1);
    fader.setData(0.9f);
    QCOMPARE(fader.value(), 0);
    fader.setData(1.0f);
    QCOMPARE(fader.value(), 1);
    QCOMPARE(fader.getData(), 1.0f);
}

void tst_GenericDataFader::dataBeyondRange_data()
{
    QTest::addColumn<float>("start");
    QTest::addColumn<float>("data");
    QTest::addColumn<int>("value");
    QTest::addColumn<QVector<float>>("emitted");

    QTest::newRow("above the maximum") << 0.0f << 7.0f << 150 << QVector<float>{1.5f};
    QTest::newRow("below the minimum") << 0.0f << -7.0f << -150 << QVector<float>{-1.5f};
    QTest::newRow("far beyond the int range") << 0.0f << FLT_MAX << 150 << QVector<float>{1.5f};
    QTest::newRow("far below the int range") << 0.0f << -FLT_MAX << -150 << QVector<float>{-1.5f};
    QTest::newRow("already at the maximum") << 1.5f << 2.0f << 150 << QVector<float>{};
    QTest::newRow("already at the minimum") << -1.5f << -2.0f << -150 << QVector<float>{};
    QTest::newRow("same slider value") << 0.25f << 0.259f << 25 << QVector<float>{};
    QTest::newRow("inside the range") << 0.0f << -0.5f << -50 << QVector<float>{-0.5f};
}

void tst_GenericDataFader::dataBeyondRange()
{
    QFETCH(float, start);
    QFETCH(float, data);
    QFETCH(int, value);
    QFETCH(QVector<float>, emitted);

    GenericDataFader fader(Qt::Vertical);
    fader.setNumberOfDecimals(2);
    fader.setMinimumData(-1.5f);
    fader.setMaximumData(1.5f);
    fader.setData(start);

    QSignalSpy spy(&fader, &GenericDataFader::dataChanged);
    fader.setData(data);
    QCOMPARE(fader.value(), value);
    QCOMPARE(spy.count(), emitted.size());
    for (int i = 0; i < emitted.size(); ++i)
        QCOMPARE(spy.at(i).at(0).value<float>(), emitted.at(i));
}

void tst_GenericDataFader::dragEmitsData()
{
    QWidget window;
    window.resize(100, 260);
    auto *fader = new GenericDataFader(Qt::Vertical, &window);
    fader->setMaximumData(10.0f);
    fader->setData(5.0f);
    fader->setGeometry(40, 20, 17, 220);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QSignalSpy data(fader, &GenericDataFader::dataChanged);
    QSignalSpy sliding(fader, &Fader::slidingChanged);
    const QPoint grab = sliderHandleRect(*fader).center();
    QTest::mousePress(fader, Qt::LeftButton, {}, grab);
    moveHeld(fader, grab + QPoint(0, -11));
    QCOMPARE(data.count(), 0);
    moveHeld(fader, grab + QPoint(0, -30));
    QTest::mouseRelease(fader, Qt::LeftButton, {}, grab + QPoint(0, -30));

    QCOMPARE(sliding.count(), 2);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.at(0).at(0).value<float>(), 5.3f);
    QCOMPARE(fader->getData(), 5.3f);
}

// A range whose slider bounds lie 2^31 apart made the style divide by zero when painting.
void tst_GenericDataFader::unboundedRangePaints()
{
    GenericDataFader fader(Qt::Vertical);
    fader.setMaximumData(0.0f);
    fader.setMinimumData(-std::numeric_limits<float>::infinity());
    fader.setTickPosition(QSlider::TicksBothSides);
    fader.resize(40, 200);
    QCOMPARE(qint64(fader.maximum()) - fader.minimum(), qint64(INT_MAX) / 2 + 1);
    const QImage image = fader.grab().toImage();
    QCOMPARE(image.size(), fader.size());
    fader.setStyleSheet(ko::qtToolkit::test::toolkitStyleSheet());
    QVERIFY(!fader.grab().isNull());
}

void tst_GenericDataFader::decimalsBeyondADoubleAreBounded()
{
    GenericDataFader fader(Qt::Vertical);
    fader.setNumberOfDecimals(4000000000u);
    QCOMPARE(fader.getNumberOfDecimals(), 17u);
    fader.setNumberOfDecimals(17u);
    QCOMPARE(fader.getNumberOfDecimals(), 17u);
    fader.setNumberOfDecimals(16u);
    QCOMPARE(fader.getNumberOfDecimals(), 16u);
}

void tst_GenericDataFader::limitsThatAreNotANumberAreRefused()
{
    GenericDataFader fader(Qt::Vertical);
    fader.setMinimumData(-5.0f);
    fader.setMaximumData(5.0f);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::ignoreMessage(QtWarningMsg, "GenericDataFader::setMinimumData: ignoring a limit that is not a number");
    fader.setMinimumData(nan);
    QTest::ignoreMessage(QtWarningMsg, "GenericDataFader::setMaximumData: ignoring a limit that is not a number");
    fader.setMaximumData(nan);
    QCOMPARE(fader.getMinimumData(), -5.0f);
    QCOMPARE(fader.getMaximumData(), 5.0f);
    QCOMPARE(fader.minimum(), -50);
    QCOMPARE(fader.maximum(), 50);
}

void tst_GenericDataFader::labels_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("bottom");
    QTest::addColumn<QString>("wrongTop"); // what a fixed-decimals format would show

    QTest::newRow("whole maximum drawn without decimals") << 80 << 0.0f << 100.0f << QStringLiteral("100")
                                                          << QStringLiteral("0") << QStringLiteral("100.0");
    QTest::newRow("fraction drawn as it is") << 80 << 0.0f << 0.5f << QStringLiteral("0.5") << QStringLiteral("0")
                                             << QStringLiteral("0.50");
    QTest::newRow("negative minimum") << 80 << -1.5f << 1.5f << QStringLiteral("1.5") << QStringLiteral("-1.5")
                                      << QStringLiteral("1.50");
    QTest::newRow("narrow fader starts its labels left of it")
        << 17 << -10.0f << 100.0f << QStringLiteral("100") << QStringLiteral("-10") << QStringLiteral("100.0");
}

void tst_GenericDataFader::labels()
{
    QFETCH(int, width);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    QFETCH(QString, top);
    QFETCH(QString, bottom);
    QFETCH(QString, wrongTop);

    const QSize size(width, 200);
    GenericDataFader fader(Qt::Vertical);
    fader.setPalette(labelPalette());
    fader.setMinimumData(minimum);
    fader.setMaximumData(maximum);
    fader.setData((minimum + maximum) / 2);
    fader.setFixedSize(size);
    QCOMPARE(fader.size(), size);

    // The same slider without labels tells which pixels the slider paints over.
    QSlider plain(Qt::Vertical);
    plain.setPalette(labelPalette());
    plain.setRange(fader.minimum(), fader.maximum());
    plain.setValue(fader.value());
    plain.setFixedSize(size);

    LabelProbe expected;
    expected.setPalette(labelPalette());
    expected.top = top;
    expected.bottom = bottom;
    expected.setFixedSize(size);
    LabelProbe wrong;
    wrong.setPalette(labelPalette());
    wrong.top = wrongTop;
    wrong.bottom = bottom;
    wrong.setFixedSize(size);

    const QImage image = rendered(fader);
    image.save(ko::qtToolkit::test::artifactPath(
        QStringLiteral("GenericDataFader-%1.png").arg(QString::fromLatin1(QTest::currentDataTag()))));
    const QImage slider = rendered(plain);
    const QImage text = rendered(expected);
    const QImage wrongText = rendered(wrong);

    int topInk = 0;
    int bottomInk = 0;
    int rightmostInk = -1;
    int mismatches = 0;
    int wrongMatches = 0;
    int comparable = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (slider.pixel(x, y) != qRgb(255, 255, 255))
                continue;
            ++comparable;
            if (image.pixel(x, y) != text.pixel(x, y))
                ++mismatches;
            if (image.pixel(x, y) != wrongText.pixel(x, y))
                ++wrongMatches;
            if (text.pixel(x, y) != qRgb(255, 255, 255)) {
                if (y < 12)
                    ++topInk;
                if (y >= size.height() - 13)
                    ++bottomInk;
                if (y < 12)
                    rightmostInk = std::max(rightmostInk, x);
            }
        }
    }
    QVERIFY(comparable > 0);
    QCOMPARE(mismatches, 0);
    QVERIFY2(topInk > 10, "the maximum label shows beside the slider");
    QVERIFY2(bottomInk > 10, "the minimum label shows beside the slider");
    QVERIFY2(wrongMatches > 0, "a differently formatted maximum would look different");
    // Right-aligned: the text ends at the widget's right edge.
    QVERIFY(rightmostInk >= width - 3);

    // Away from the labels the fader looks like a plain slider.
    int sliderMismatches = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            if (text.pixel(x, y) == qRgb(255, 255, 255) && image.pixel(x, y) != slider.pixel(x, y))
                ++sliderMismatches;
    QCOMPARE(sliderMismatches, 0);
}

void tst_GenericDataFader::defaultData_data()
{
    QTest::addColumn<unsigned int>("decimals");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<bool>("explicitDefault");
    QTest::addColumn<float>("setTo");
    QTest::addColumn<int>("value");
    QTest::addColumn<float>("data");

    QTest::newRow("the minimum until one is set") << 1u << -2.5f << 10.0f << false << 0.0f << -25 << -2.5f;
    QTest::newRow("the minimum on the slider's grid") << 1u << -2.55f << 10.0f << false << 0.0f << -25 << -2.5f;
    QTest::newRow("one decimal") << 1u << 0.0f << 500.0f << true << 250.0f << 2500 << 250.0f;
    QTest::newRow("truncated toward zero to the decimals") << 2u << -1.5f << 1.5f << true << 0.257f << 25 << 0.25f;
    QTest::newRow("negative truncated toward zero") << 2u << -1.5f << 1.5f << true << -0.257f << -25 << -0.25f;
    QTest::newRow("no decimals") << 0u << 0.0f << 10.0f << true << 3.9f << 3 << 3.0f;
    QTest::newRow("kept beyond the range") << 1u << 0.0f << 10.0f << true << 20.0f << 200 << 20.0f;
    QTest::newRow("minus infinity saturates") << 1u << -10.0f << 0.0f << true << -std::numeric_limits<float>::infinity()
                                              << INT_MIN << float(INT_MIN) / 10.0f;
}

void tst_GenericDataFader::defaultData()
{
    QFETCH(unsigned int, decimals);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    QFETCH(bool, explicitDefault);
    QFETCH(float, setTo);
    QFETCH(int, value);
    QFETCH(float, data);

    GenericDataFader fader(Qt::Vertical);
    fader.setNumberOfDecimals(decimals);
    fader.setMinimumData(minimum);
    fader.setMaximumData(maximum);
    fader.setData(maximum);
    QSignalSpy spy(&fader, &GenericDataFader::dataChanged);
    if (explicitDefault)
        fader.setDefaultData(setTo);
    QCOMPARE(fader.defaultValue(), value);
    QCOMPARE(fader.defaultData(), data);
    // Setting the default leaves the data alone.
    QCOMPARE(fader.getData(), maximum);
    QCOMPARE(spy.count(), 0);
}

void tst_GenericDataFader::defaultDataFollowsTheDecimals()
{
    GenericDataFader fader(Qt::Vertical);
    QCOMPARE(fader.defaultData(), 0.0f);
    fader.setMinimumData(-5.0f);
    QCOMPARE(fader.defaultValue(), -50);
    QCOMPARE(fader.defaultData(), -5.0f);

    fader.setDefaultData(2.5f);
    QCOMPARE(fader.defaultValue(), 25);
    fader.setNumberOfDecimals(2);
    QCOMPARE(fader.defaultValue(), 250);
    QCOMPARE(fader.defaultData(), 2.5f);
    fader.setNumberOfDecimals(0);
    QCOMPARE(fader.defaultValue(), 2);
    QCOMPARE(fader.defaultData(), 2.0f);
    // Back to more decimals, the data given is mapped again rather than the rounded value.
    fader.setNumberOfDecimals(1);
    QCOMPARE(fader.defaultValue(), 25);
    QCOMPARE(fader.defaultData(), 2.5f);
    // A change of the data range keeps the default.
    fader.setMaximumData(1.0f);
    QCOMPARE(fader.defaultData(), 2.5f);
}

void tst_GenericDataFader::defaultDataThatIsNotANumberIsRefused()
{
    GenericDataFader fader(Qt::Vertical);
    fader.setDefaultData(1.5f);
    QTest::ignoreMessage(QtWarningMsg, "GenericDataFader::setDefaultData: ignoring a default that is not a number");
    fader.setDefaultData(std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(fader.defaultData(), 1.5f);
    QCOMPARE(fader.defaultValue(), 15);
}

void tst_GenericDataFader::doubleTapResetsData()
{
    QWidget window;
    window.resize(100, 260);
    auto *fader = new GenericDataFader(Qt::Vertical, &window);
    fader->setMaximumData(500.0f);
    fader->setData(123.4f);
    fader->setDefaultData(250.0f);
    fader->setResetOnDoubleTapEnabled(true);
    fader->setGeometry(40, 20, 17, 220);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QSignalSpy data(fader, &GenericDataFader::dataChanged);
    const QPoint center = fader->mapTo(&window, sliderHandleRect(*fader).center());
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, center);
    QCOMPARE(fader->getData(), 250.0f);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.at(0).at(0).value<float>(), 250.0f);
    QVERIFY(!fader->isSliding());

    // Rendered as a fader set to the default.
    GenericDataFader reference(Qt::Vertical);
    reference.setMaximumData(500.0f);
    reference.setData(250.0f);
    reference.setFixedSize(fader->size());
    QCOMPARE(fader->grab().toImage().convertToFormat(QImage::Format_RGB32),
             reference.grab().toImage().convertToFormat(QImage::Format_RGB32));

    // Switched off, a double click leaves the data.
    fader->setData(100.0f);
    fader->setResetOnDoubleTapEnabled(false);
    data.clear();
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                       fader->mapTo(&window, sliderHandleRect(*fader).center()));
    QCOMPARE(fader->getData(), 100.0f);
    QCOMPARE(data.count(), 0);
}

void tst_GenericDataFader::fullRangeDragSweepsTheData_data()
{
    QTest::addColumn<int>("across"); // 0 for fine mode
    QTest::newRow("fine") << 0;
    QTest::newRow("coarse") << 12;
}

// 0 to 500 with one decimal is 5000 slider units: 25000 pixels of a coarse drag by steps, the
// length of the groove by the full range.
void tst_GenericDataFader::fullRangeDragSweepsTheData()
{
    QFETCH(int, across);

    QWidget window;
    window.resize(100, 260);
    auto *fader = new GenericDataFader(Qt::Vertical, &window);
    fader->setMaximumData(500.0f);
    fader->setData(0.0f);
    fader->setDragMode(Fader::FullRangeDrag);
    fader->setGeometry(40, 20, 17, 220);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QSignalSpy data(fader, &GenericDataFader::dataChanged);
    const QPoint grab = sliderHandleRect(*fader).center();
    const int top = fader->height();
    QTest::mousePress(fader, Qt::LeftButton, {}, grab);
    moveHeld(fader, across ? grab + QPoint(across, 0) : grab + QPoint(0, -11));
    QCOMPARE(data.count(), 0);
    moveHeld(fader, grab + QPoint(across, -top / 2));
    const float half = fader->getData();
    QVERIFY2(half > 200.0f && half < 300.0f, qPrintable(QString::number(double(half))));
    if (across)
        QCOMPARE(std::fmod(half, 50.0f), 0.0f);
    moveHeld(fader, grab + QPoint(across, -top));
    QTest::mouseRelease(fader, Qt::LeftButton, {}, grab + QPoint(across, -top));

    QCOMPARE(fader->getData(), 500.0f);
    QCOMPARE(data.count(), 2);
    QCOMPARE(data.at(0).at(0).value<float>(), half);
    QCOMPARE(data.at(1).at(0).value<float>(), 500.0f);
}

QTEST_MAIN(tst_GenericDataFader)
#include "tst_GenericDataFader.moc"
