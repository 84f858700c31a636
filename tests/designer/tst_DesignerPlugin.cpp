// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

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

#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QTest>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

using namespace ko::qtToolkit::widget;

namespace {

// Whether a widget is of the class a row names; Button and ElidedButton have no meta-object of
// their own, so the check is the C++ type.
using IsA = bool (*)(const QWidget *);

template<typename Widget>
bool isA(const QWidget *widget)
{
    return dynamic_cast<const Widget *>(widget) != nullptr;
}

// Every widget the plugin offers, in the widget box's order: class and object name.
struct Offered
{
    const char *className;
    const char *objectName;
    IsA check;
};

const Offered offered[] = {
    {"ko::qtToolkit::widget::Fader", "fader", isA<Fader>},
    {"ko::qtToolkit::widget::GenericDataFader", "genericDataFader", isA<GenericDataFader>},
    {"ko::qtToolkit::widget::LevelMeter", "levelMeter", isA<LevelMeter>},
    {"ko::qtToolkit::widget::LevelScale", "levelScale", isA<LevelScale>},
    {"ko::qtToolkit::widget::TextEntry", "textEntry", isA<TextEntry>},
    {"ko::qtToolkit::widget::Keypad", "keypad", isA<Keypad>},
    {"ko::qtToolkit::widget::Button", "button", isA<Button>},
    {"ko::qtToolkit::widget::ButtonGroup", "buttonGroup", isA<ButtonGroup>},
    {"ko::qtToolkit::widget::ToggleButtonGroup", "toggleButtonGroup", isA<ToggleButtonGroup>},
    {"ko::qtToolkit::widget::ElidedLabel", "elidedLabel", isA<ElidedLabel>},
    {"ko::qtToolkit::widget::ElidedButton", "elidedButton", isA<ElidedButton>},
    {"ko::qtToolkit::widget::ComboBox", "comboBox", isA<ComboBox>},
    {"ko::qtToolkit::widget::ListWidget", "listWidget", isA<ListWidget>},
    {"ko::qtToolkit::widget::TableWidget", "tableWidget", isA<TableWidget>},
    {"ko::qtToolkit::widget::listWithButtons::ListWrapper", "listWrapper",
     isA<listWithButtons::ListWrapper>},
};

} // namespace

Q_DECLARE_METATYPE(IsA)

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private:
    QDesignerCustomWidgetInterface *widgetNamed(const QString &className) const;

    std::unique_ptr<QPluginLoader> loader;
    QDesignerCustomWidgetCollectionInterface *collection = nullptr;

private Q_SLOTS:
    void initTestCase();
    void widgetList();
    void description_data();
    void description();
    void createWidget_data();
    void createWidget();
    void uiLoader();
    void cleanupTestCase();
};

QDesignerCustomWidgetInterface *tst_DesignerPlugin::widgetNamed(const QString &className) const
{
    const auto widgets = collection->customWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        if (widget->name() == className)
            return widget;
    }
    return nullptr;
}

void tst_DesignerPlugin::initTestCase()
{
    loader = std::make_unique<QPluginLoader>(QStringLiteral(KO_TEST_DESIGNER_PLUGIN_FILE));
    QVERIFY2(loader->load(), qPrintable(loader->errorString()));
    QCOMPARE(loader->metaData().value(QStringLiteral("IID")).toString(),
             QStringLiteral("org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"));
    collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader->instance());
    QVERIFY(collection);
}

void tst_DesignerPlugin::widgetList()
{
    QStringList expected;
    for (const Offered &widget : offered)
        expected << QLatin1String(widget.className);
    QStringList names;
    const auto widgets = collection->customWidgets();
    for (const QDesignerCustomWidgetInterface *widget : widgets)
        names << widget->name();
    QCOMPARE(names, expected);
}

void tst_DesignerPlugin::description_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("objectName");
    for (const Offered &widget : offered)
        QTest::newRow(widget.objectName) << QString::fromLatin1(widget.className)
                                         << QString::fromLatin1(widget.objectName);
}

// What the widget box shows, and the defaults of a widget dropped on a form.
void tst_DesignerPlugin::description()
{
    QFETCH(QString, className);
    QFETCH(QString, objectName);
    QDesignerCustomWidgetInterface *widget = widgetNamed(className);
    QVERIFY(widget);

    QCOMPARE(widget->group(), QStringLiteral("ko qtToolkit"));
    QCOMPARE(widget->includeFile(), className.split(QStringLiteral("::")).join(QLatin1Char('/'))
             + QStringLiteral(".h"));
    QVERIFY(!widget->isContainer());
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(widget->whatsThis().length() > widget->toolTip().length());
    const QIcon icon = widget->icon();
    QVERIFY(!icon.isNull());
    QVERIFY(!icon.pixmap(QSize(24, 24)).isNull());

    // The DOM XML: one widget of the class, named, with its geometry.
    QXmlStreamReader xml(widget->domXml());
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name().toString(), QStringLiteral("ui"));
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.name().toString(), QStringLiteral("widget"));
    QCOMPARE(xml.attributes().value(QStringLiteral("class")).toString(), className);
    QCOMPARE(xml.attributes().value(QStringLiteral("name")).toString(), objectName);
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value(QStringLiteral("name")).toString(), QStringLiteral("geometry"));
    while (!xml.atEnd())
        xml.readNext();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
}

void tst_DesignerPlugin::createWidget_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<IsA>("check");
    for (const Offered &widget : offered)
        QTest::newRow(widget.objectName) << QString::fromLatin1(widget.className) << widget.check;
}

void tst_DesignerPlugin::createWidget()
{
    QFETCH(QString, className);
    QFETCH(IsA, check);
    QDesignerCustomWidgetInterface *widget = widgetNamed(className);
    QVERIFY(widget);

    QWidget parent;
    QWidget *created = widget->createWidget(&parent);
    QVERIFY(created);
    QVERIFY(check(created));
    QCOMPARE(created->parentWidget(), &parent);
    // Outside Designer nothing is added for show: a button group starts empty.
    if (auto *group = dynamic_cast<ButtonGroup *>(created); group && !dynamic_cast<ToggleButtonGroup *>(group))
        QVERIFY(group->buttons().isEmpty());
    parent.resize(400, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
}

// A form holding every widget of the plugin, read at run time: the classes and the properties
// the form sets.
void tst_DesignerPlugin::uiLoader()
{
    QUiLoader uiLoader;
    uiLoader.clearPluginPaths();
    uiLoader.addPluginPath(QStringLiteral(KO_TEST_DESIGNER_PLUGIN_DIR));
    for (const Offered &widget : offered)
        QVERIFY2(uiLoader.availableWidgets().contains(QLatin1String(widget.className)),
                 widget.className);

    QFile file(QStringLiteral(":/tst_DesignerPlugin/allWidgets.ui"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    std::unique_ptr<QWidget> form(uiLoader.load(&file));
    QVERIFY2(form, qPrintable(uiLoader.errorString()));

    for (const Offered &widget : offered) {
        auto *child = form->findChild<QWidget *>(QLatin1String(widget.objectName));
        QVERIFY2(child, widget.objectName);
        QVERIFY2(widget.check(child), widget.objectName);
        // The faders are as wide as they are fixed to be.
        QVERIFY2(child->geometry().size() == QSize(180, 140).boundedTo(child->maximumSize()),
                 widget.objectName);
    }

    auto *fader = form->findChild<Fader *>(QStringLiteral("fader"));
    QCOMPARE(fader->orientation(), Qt::Vertical);
    QCOMPARE(fader->maximum(), 50);
    QCOMPARE(fader->value(), 30);

    auto *dataFader = form->findChild<GenericDataFader *>(QStringLiteral("genericDataFader"));
    QCOMPARE(dataFader->orientation(), Qt::Vertical);
    QCOMPARE(dataFader->toolTip(), QStringLiteral("Gain"));

    auto *meter = form->findChild<LevelMeter *>(QStringLiteral("levelMeter"));
    QCOMPARE(meter->orientation(), Qt::Vertical);
    QCOMPARE(meter->mediumThresholdLevel(), -12.5f);
    QCOMPARE(meter->highThresholdLevel(), 6.0f);
    QVERIFY(meter->isMuted());

    auto *scale = form->findChild<LevelScale *>(QStringLiteral("levelScale"));
    QVERIFY(scale->isMirrored());

    auto *entry = form->findChild<TextEntry *>(QStringLiteral("textEntry"));
    QCOMPARE(entry->suffix(), QStringLiteral("dB"));
    QCOMPARE(entry->text(), QStringLiteral("5.00"));

    QCOMPARE(form->findChild<Keypad *>(QStringLiteral("keypad"))->title(), QStringLiteral("Gain"));
    QCOMPARE(form->findChild<Button *>(QStringLiteral("button"))->text(), QStringLiteral("Play"));
    auto *group = form->findChild<ButtonGroup *>(QStringLiteral("buttonGroup"));
    QCOMPARE(group->toolTip(), QStringLiteral("Modes"));
    QVERIFY(group->buttons().isEmpty());
    auto *toggle = form->findChild<ToggleButtonGroup *>(QStringLiteral("toggleButtonGroup"));
    QVERIFY(!toggle->isEnabled());
    QVERIFY(toggle->isOff());
    QCOMPARE(form->findChild<ElidedLabel *>(QStringLiteral("elidedLabel"))->text(),
             QStringLiteral("A rather long caption for a label"));
    QCOMPARE(form->findChild<ElidedButton *>(QStringLiteral("elidedButton"))->text(),
             QStringLiteral("A rather long caption for a button"));
    auto *combo = form->findChild<ComboBox *>(QStringLiteral("comboBox"));
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(1), QStringLiteral("Two"));
    QCOMPARE(form->findChild<ListWidget *>(QStringLiteral("listWidget"))->spacing(), 4);
    auto *table = form->findChild<TableWidget *>(QStringLiteral("tableWidget"));
    QCOMPARE(table->rowCount(), 3);
    QCOMPARE(table->columnCount(), 2);
    QCOMPARE(form->findChild<listWithButtons::ListWrapper *>(QStringLiteral("listWrapper"))->toolTip(),
             QStringLiteral("Pages"));
}

void tst_DesignerPlugin::cleanupTestCase()
{
    // The plugin stays loaded: widgets it created may still be deleted by the event loop.
    collection = nullptr;
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
