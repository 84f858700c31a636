// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Every text a widget shows, rendered under the light and the dark sheet, measured from the
// pixels: the contrast ratio of the text colour to the background under it (WCAG 2 relative
// luminance) is at least 4.5:1, and the states a touch panel must tell apart look different.
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/ElidedButton.h>
#include <ko/qtToolkit/widget/ElidedLabel.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/Keypad.h>
#include <ko/qtToolkit/widget/ListWidget.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>

#include <KeypadSupport.h>
#include <TestSupport.h>
#include <WidgetSupport.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QMap>
#include <QTest>

#include <cmath>
#include <functional>
#include <limits>

namespace {

namespace w = ko::qtToolkit::widget;

constexpr double minimumRatio = 4.5;

double linearChannel(int value)
{
    const double c = value / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double relativeLuminance(QRgb rgb)
{
    return 0.2126 * linearChannel(qRed(rgb)) + 0.7152 * linearChannel(qGreen(rgb))
           + 0.0722 * linearChannel(qBlue(rgb));
}

double contrastRatio(QRgb a, QRgb b)
{
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// What a scene puts on screen: the widget and the part of it to measure (its whole rectangle
// unless the scene says otherwise), in the widget's coordinates.
struct Target
{
    QWidget *widget = nullptr;
    QRect rect;
};

// Builds a widget in one state inside a shown host, with \a text as its caption, or an empty one.
using Scene = std::function<Target(QWidget *host, const QString &text)>;

struct Shot
{
    QImage image;
    QRect region; // in the image
};

Shot shoot(const Scene &scene, const QString &text)
{
    QWidget host;
    host.resize(360, 360);
    host.show();
    if (!QTest::qWaitForWindowExposed(&host))
        return {};
    Target target = scene(&host, text);
    if (!target.widget)
        return {};
    QWidget *window = target.widget->window();
    if (window != &host && !QTest::qWaitForWindowExposed(window))
        return {};
    QApplication::processEvents();
    const QRect rect = target.rect.isNull() ? target.widget->rect() : target.rect;
    Shot shot;
    shot.image = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    shot.region = QRect(target.widget->mapTo(window, rect.topLeft()), rect.size()) & shot.image.rect();
    window->hide();
    return shot;
}

struct Measurement
{
    int glyphPixels = 0;
    QRgb text = 0;
    QRgb background = 0;
    double ratio = 0.0;
};

// Glyph pixels are where the two renderings differ. The text colour is the glyph pixel that
// stands out most from the background under it (a fully covered one, not an antialiased edge);
// the ratio is that colour against the least contrasting background under any glyph pixel, so a
// gradient is judged where it is closest to the text.
Measurement measure(const Shot &withText, const Shot &blank)
{
    Measurement m;
    double strongest = 0.0;
    const QRect region = withText.region;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const QRgb glyph = withText.image.pixel(x, y);
            const QRgb under = blank.image.pixel(x, y);
            if (glyph == under)
                continue;
            ++m.glyphPixels;
            const double ratio = contrastRatio(glyph, under);
            if (ratio > strongest) {
                strongest = ratio;
                m.text = glyph;
            }
        }
    }
    m.ratio = std::numeric_limits<double>::max();
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const QRgb under = blank.image.pixel(x, y);
            if (withText.image.pixel(x, y) == under)
                continue;
            const double ratio = contrastRatio(m.text, under);
            if (ratio < m.ratio) {
                m.ratio = ratio;
                m.background = under;
            }
        }
    }
    return m;
}

QRgb meanColour(const Shot &shot)
{
    qint64 r = 0, g = 0, b = 0;
    const QRect region = shot.region;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const QRgb pixel = shot.image.pixel(x, y);
            r += qRed(pixel);
            g += qGreen(pixel);
            b += qBlue(pixel);
        }
    }
    const qint64 n = std::max<qint64>(1, qint64(region.width()) * region.height());
    return qRgb(int(r / n), int(g / n), int(b / n));
}

double distance(QRgb a, QRgb b)
{
    return std::hypot(qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b));
}

template<typename T>
T *placed(T *widget, const QRect &geometry)
{
    widget->setGeometry(geometry);
    widget->show();
    return widget;
}

// A button of the library at a fixed place, in one of its states.
Scene buttonScene(std::function<void(w::Button *)> state)
{
    return [state](QWidget *host, const QString &text) -> Target {
        auto *button = new w::Button(text, host);
        // Before the first polish: the sheet reads dynamic properties such as "class" then.
        state(button);
        return {placed(button, QRect(20, 20, 160, 40)), {}};
    };
}

void checked(w::Button *button)
{
    button->setCheckable(true);
    button->setChecked(true);
}

void critical(w::Button *button)
{
    button->setProperty("class", QStringLiteral("critical"));
    checked(button);
}

// The rows of a two-row list of checkable buttons, the first one current.
Target listRow(QWidget *host, const QString &text, int row)
{
    auto *list = placed(new w::ListWidget(host), QRect(20, 20, 200, 160));
    for (int i = 0; i < 2; ++i) {
        auto *button = new w::Button(text);
        button->setCheckable(true);
        list->addItem(button);
    }
    qobject_cast<QAbstractButton *>(list->widget(0))->setChecked(true);
    return {list->widget(row), {}};
}

// A row of the combo box's pop-up list; the first row is the current one.
Target comboRow(QWidget *host, const QString &text, int row)
{
    auto *combo = placed(new w::ComboBox(host), QRect(20, 20, 200, 40));
    for (int i = 0; i < 3; ++i)
        combo->addItem(text);
    combo->setCurrentIndex(0);
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    return {view->viewport(), view->visualRect(view->model()->index(row, 0))};
}

Target buttonGroupButton(QWidget *host, const QString &text, int id)
{
    auto *group = placed(new w::ButtonGroup(host), QRect(20, 20, 160, 140));
    group->addButton(text, true);
    group->addButton(text, false);
    group->addButton(text, false);
    return {group->button(id), {}};
}

Target toggleButton(QWidget *host, const QString &text, bool onButton)
{
    auto *toggle = placed(new w::ToggleButtonGroup(host), QRect(20, 20, 160, 100));
    toggle->setOnText(text);
    toggle->setOffText(text);
    toggle->setOn(true);
    return {toggle->button(onButton ? 1 : 0), {}};
}

// The data fader labels its range; a plain fader of the same range and place draws the same
// slider without them.
Target dataFaderLabels(QWidget *host, const QString &text)
{
    w::Fader *fader = nullptr;
    if (text.isEmpty()) {
        fader = new w::Fader(Qt::Vertical, host);
        fader->setRange(-150, 150);
    } else {
        auto *dataFader = new w::GenericDataFader(Qt::Vertical, host);
        dataFader->setNumberOfDecimals(2);
        dataFader->setMinimumData(-1.5f);
        dataFader->setMaximumData(1.5f);
        fader = dataFader;
    }
    fader->setValue(0);
    placed(fader, QRect(20, 20, 40, 200));
    return {fader, {}};
}

QMap<QString, Scene> scenes()
{
    QMap<QString, Scene> all;
    all.insert(QStringLiteral("label"), [](QWidget *host, const QString &text) -> Target {
        return {placed(new QLabel(text, host), QRect(20, 20, 200, 30)), {}};
    });
    all.insert(QStringLiteral("elided label"), [](QWidget *host, const QString &text) -> Target {
        return {placed(new w::ElidedLabel(text, host), QRect(20, 20, 90, 30)), {}};
    });
    all.insert(QStringLiteral("button"), buttonScene([](w::Button *) {}));
    all.insert(QStringLiteral("button checked"), buttonScene(checked));
    all.insert(QStringLiteral("button pressed"), buttonScene([](w::Button *b) { b->setDown(true); }));
    all.insert(QStringLiteral("button disabled"), buttonScene([](w::Button *b) { b->setEnabled(false); }));
    all.insert(QStringLiteral("button checked disabled"), buttonScene([](w::Button *b) {
        checked(b);
        b->setEnabled(false);
    }));
    all.insert(QStringLiteral("critical checked"), buttonScene(critical));
    all.insert(QStringLiteral("critical checked disabled"), buttonScene([](w::Button *b) {
        critical(b);
        b->setEnabled(false);
    }));
    all.insert(QStringLiteral("elided button"), [](QWidget *host, const QString &text) -> Target {
        return {placed(new w::ElidedButton(text, host), QRect(20, 20, 90, 40)), {}};
    });
    all.insert(QStringLiteral("button group top checked"),
               [](QWidget *host, const QString &text) { return buttonGroupButton(host, text, 0); });
    all.insert(QStringLiteral("button group middle"),
               [](QWidget *host, const QString &text) { return buttonGroupButton(host, text, 1); });
    all.insert(QStringLiteral("button group bottom"),
               [](QWidget *host, const QString &text) { return buttonGroupButton(host, text, 2); });
    all.insert(QStringLiteral("toggle on"), [](QWidget *host, const QString &text) { return toggleButton(host, text, true); });
    all.insert(QStringLiteral("toggle off"), [](QWidget *host, const QString &text) { return toggleButton(host, text, false); });
    all.insert(QStringLiteral("text entry"), [](QWidget *host, const QString &text) -> Target {
        auto *entry = new w::TextEntry(host);
        // A plain text entry: the default validator would turn an empty text into "0.00".
        entry->setNumeric(false);
        entry->setValidator(nullptr);
        entry->setText(text);
        return {placed(entry, QRect(20, 20, 200, 32)), {}};
    });
    all.insert(QStringLiteral("combo box"), [](QWidget *host, const QString &text) -> Target {
        auto *combo = placed(new w::ComboBox(host), QRect(20, 20, 200, 40));
        combo->addItem(text);
        return {combo, {}};
    });
    all.insert(QStringLiteral("combo box disabled"), [](QWidget *host, const QString &text) -> Target {
        auto *combo = placed(new w::ComboBox(host), QRect(20, 20, 200, 40));
        combo->addItem(text);
        combo->setEnabled(false);
        return {combo, {}};
    });
    all.insert(QStringLiteral("combo row current"), [](QWidget *host, const QString &text) { return comboRow(host, text, 0); });
    all.insert(QStringLiteral("combo row"), [](QWidget *host, const QString &text) { return comboRow(host, text, 1); });
    all.insert(QStringLiteral("list row current"), [](QWidget *host, const QString &text) { return listRow(host, text, 0); });
    all.insert(QStringLiteral("list row"), [](QWidget *host, const QString &text) { return listRow(host, text, 1); });
    all.insert(QStringLiteral("keypad key"), [](QWidget *host, const QString &text) -> Target {
        auto *keypad = placed(new w::Keypad(host), QRect(10, 10, 320, 340));
        QPushButton *key = ko::qtToolkit::test::keypadButton(*keypad, QStringLiteral("7"));
        if (key && text.isEmpty())
            key->setText(QString());
        return {key, {}};
    });
    all.insert(QStringLiteral("data fader labels"), dataFaderLabels);
    return all;
}

// Light-sheet colours that the design fixes and that fall below 4.5:1; the sheet keeps them, and
// these rows fail as expected until the design changes them.
QMap<QString, const char *> designedLightShortfalls()
{
    const char *whiteOnGradient = "white text on the #adadad to #666666 button gradient";
    const char *whiteOnDisabled = "white text on the disabled #c5c5c5 to #999999 gradient";
    QMap<QString, const char *> shortfalls{
        {QStringLiteral("button disabled"), whiteOnDisabled},
        {QStringLiteral("combo box disabled"), whiteOnDisabled},
        // Taller buttons stretch the gradient, so the glyphs sit on its lighter part.
        {QStringLiteral("button group middle"), whiteOnGradient},
        {QStringLiteral("list row"), whiteOnGradient},
        {QStringLiteral("toggle off"), whiteOnGradient},
        {QStringLiteral("critical checked disabled"), "lightgray text on the #c78585 to #b56363 gradient"},
        {QStringLiteral("data fader labels"), "the labels are drawn in the palette's Mid colour, not by the sheet"},
    };
    // Qt 6 rounds the font's ascent otherwise and centres a label one pixel higher, where the
    // gradient is lighter: 4.29:1 instead of 4.54:1 on the buttons of the normal height.
    if (QLibraryInfo::version().majorVersion() >= 6) {
        const char *oneRowHigher = "Qt 6 draws the label one pixel higher on the #adadad to #666666 gradient";
        for (const char *scene : {"button", "button group bottom", "combo box", "elided button"})
            shortfalls.insert(QString::fromLatin1(scene), oneRowHigher);
    }
    return shortfalls;
}

struct Lowest
{
    double ratio = std::numeric_limits<double>::max();
    QString where;
};

} // namespace

class tst_Contrast : public QObject
{
    Q_OBJECT

private:
    QMap<QString, Lowest> m_lowest; // by sheet

private Q_SLOTS:
    void initTestCase()
    {
        ko::qtToolkit::test::useFixedFont();
        QVERIFY(!ko::qtToolkit::test::toolkitStyleSheet().isEmpty());
        QVERIFY(!ko::qtToolkit::test::darkToolkitStyleSheet().isEmpty());
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
    }

    void cleanupTestCase()
    {
        for (auto it = m_lowest.cbegin(); it != m_lowest.cend(); ++it)
            qInfo("lowest contrast under the %s sheet: %.2f:1 (%s)", qPrintable(it.key()), it->ratio,
                  qPrintable(it->where));
    }

    void textContrast_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("scene");
        const QStringList names = scenes().keys();
        for (const char *sheet : {"light", "dark"}) {
            for (const QString &name : names)
                QTest::addRow("%s: %s", sheet, qPrintable(name)) << QString::fromLatin1(sheet) << name;
        }
    }

    void textContrast()
    {
        QFETCH(QString, sheet);
        QFETCH(QString, scene);
        qApp->setStyleSheet(sheet == QLatin1String("dark") ? ko::qtToolkit::test::darkToolkitStyleSheet()
                                                           : ko::qtToolkit::test::toolkitStyleSheet());
        const Scene build = scenes().value(scene);
        const Shot withText = shoot(build, QStringLiteral("Gain 48"));
        const Shot blank = shoot(build, QString());
        QVERIFY(!withText.image.isNull() && !blank.image.isNull());
        QCOMPARE(withText.region, blank.region);
        withText.image.copy(withText.region)
            .save(ko::qtToolkit::test::artifactPath(QStringLiteral("contrast-%1-%2.png").arg(sheet, scene).replace(QLatin1Char(' '), QLatin1Char('-'))));

        const Measurement m = measure(withText, blank);
        QVERIFY2(m.glyphPixels >= 10, qPrintable(QStringLiteral("%1 glyph pixels").arg(m.glyphPixels)));
        const QString report = QStringLiteral("%1 on %2: %3:1")
                                   .arg(QColor(m.text).name(), QColor(m.background).name())
                                   .arg(m.ratio, 0, 'f', 2);
        qInfo("%s", qPrintable(report));
        Lowest &lowest = m_lowest[sheet];
        if (m.ratio < lowest.ratio)
            lowest = {m.ratio, scene + QStringLiteral(", ") + report};

        const QMap<QString, const char *> shortfalls = designedLightShortfalls();
        if (sheet == QLatin1String("light") && shortfalls.contains(scene))
            QEXPECT_FAIL("", shortfalls.value(scene), Continue);
        QVERIFY2(m.ratio >= minimumRatio, qPrintable(report));
    }

    void statesDiffer_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        const std::pair<const char *, const char *> pairs[] = {
            {"button", "button checked"},
            {"button", "button pressed"},
            {"button", "button disabled"},
            {"button checked", "button checked disabled"},
            {"button checked", "button pressed"},
            {"critical checked", "critical checked disabled"},
            {"combo box", "combo box disabled"},
            {"toggle on", "toggle off"},
            {"list row current", "list row"},
        };
        for (const char *sheet : {"light", "dark"}) {
            for (const auto &pair : pairs)
                QTest::addRow("%s: %s / %s", sheet, pair.first, pair.second)
                    << QString::fromLatin1(sheet) << QString::fromLatin1(pair.first) << QString::fromLatin1(pair.second);
        }
    }

    // Two states of a widget differ in their mean colour by a visible step.
    void statesDiffer()
    {
        QFETCH(QString, sheet);
        QFETCH(QString, first);
        QFETCH(QString, second);
        qApp->setStyleSheet(sheet == QLatin1String("dark") ? ko::qtToolkit::test::darkToolkitStyleSheet()
                                                           : ko::qtToolkit::test::toolkitStyleSheet());
        const QMap<QString, Scene> all = scenes();
        const QRgb a = meanColour(shoot(all.value(first), QStringLiteral("Gain 48")));
        const QRgb b = meanColour(shoot(all.value(second), QStringLiteral("Gain 48")));
        const double step = distance(a, b);
        QVERIFY2(step >= 20.0, qPrintable(QStringLiteral("%1 vs %2: %3").arg(QColor(a).name(), QColor(b).name()).arg(step)));
    }

    void faderHandleStatesDiffer_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("light") << QStringLiteral("light");
        QTest::newRow("dark") << QStringLiteral("dark");
    }

    // The handle of a disabled fader, and the handle in fine and coarse mode, look unlike the
    // idle one.
    void faderHandleStatesDiffer()
    {
        QFETCH(QString, sheet);
        qApp->setStyleSheet(sheet == QLatin1String("dark") ? ko::qtToolkit::test::darkToolkitStyleSheet()
                                                           : ko::qtToolkit::test::toolkitStyleSheet());
        auto fader = [](std::function<void(w::Fader *)> state) {
            return [state](QWidget *host, const QString &) -> Target {
                auto *fader = placed(new w::Fader(Qt::Vertical, host), QRect(20, 20, 40, 200));
                fader->setRange(0, 100);
                fader->setValue(50);
                state(fader);
                fader->style()->unpolish(fader);
                fader->style()->polish(fader);
                return {fader, ko::qtToolkit::test::sliderHandleRect(*fader)};
            };
        };
        const QRgb idle = meanColour(shoot(fader([](w::Fader *) {}), QString()));
        const QRgb disabled = meanColour(shoot(fader([](w::Fader *f) { f->setEnabled(false); }), QString()));
        const QRgb fine = meanColour(shoot(fader([](w::Fader *f) { f->setProperty("class", QStringLiteral("fine")); }), QString()));
        const QRgb coarse = meanColour(shoot(fader([](w::Fader *f) { f->setProperty("class", QStringLiteral("coarse")); }), QString()));
        QVERIFY2(distance(idle, disabled) >= 20.0, qPrintable(QColor(disabled).name()));
        QVERIFY2(distance(idle, fine) >= 20.0, qPrintable(QColor(fine).name()));
        QVERIFY2(distance(idle, coarse) >= 20.0, qPrintable(QColor(coarse).name()));
    }
};

QTEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
