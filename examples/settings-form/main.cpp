// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A device's settings on an 800 x 480 touch panel: a list of sections paged by arrow buttons on
// the left, and a form per section with numeric entries in units (touching one opens the keypad),
// text entries, combo boxes, on/off switches and button groups. The display section switches
// between the light and the dark style sheet.
//
//   ko-qttoolkit-settings-form                    opens the settings
//   ko-qttoolkit-settings-form --screenshot FILE  renders the window to FILE (PNG) and exits

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/ButtonGroup.h>
#include <ko/qtToolkit/widget/ComboBox.h>
#include <ko/qtToolkit/widget/TextEntry.h>
#include <ko/qtToolkit/widget/ToggleButtonGroup.h>
#include <ko/qtToolkit/widget/listWithButtons/WidgetBase.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QEvent>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextStream>

namespace {

using namespace ko::qtToolkit;

// The keypad is a window of its own, kept inside its constrained rectangle. That rectangle is
// empty until the application sets it, and the keypad would then open at negative coordinates,
// off the screen; this keeps it on the settings window, wherever the window goes.
class KeypadInsideWindow : public QObject
{
public:
    explicit KeypadInsideWindow(QWidget &window)
        : QObject(&window)
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The window system may place the window only after Show, and without a Move; it is
        // placed by the time the window is activated.
        const QEvent::Type type = event->type();
        if (type == QEvent::Show || type == QEvent::WindowActivate || type == QEvent::Move
            || type == QEvent::Resize)
            singleton::Keypad::instance()->setConstrainedRect(static_cast<QWidget *>(watched)->geometry());
        return false;
    }
};

// A numeric entry: the validator gives its range and decimals (and the keypad's range), the
// suffix its unit.
widget::TextEntry *number(double bottom, double top, int decimals, const QString &unit, double value)
{
    auto *entry = new widget::TextEntry;
    entry->setValidator(new common::DoubleValidator(bottom, top, decimals, entry));
    entry->setSuffix(unit);
    entry->setText(QString::number(value, 'f', decimals));
    return entry;
}

// A text entry: typed on the keyboard, elided when too long, without the default numeric
// validator.
widget::TextEntry *text(const QString &value, const QString &placeholder = QString())
{
    auto *entry = new widget::TextEntry;
    entry->setNumeric(false);
    entry->setValidator(nullptr);
    entry->setPlaceholderText(placeholder);
    entry->setText(value);
    return entry;
}

widget::ComboBox *choice(const QStringList &items, int current)
{
    auto *combo = new widget::ComboBox;
    combo->addItems(items);
    combo->setCurrentIndex(current);
    return combo;
}

widget::ToggleButtonGroup *onOff(bool on)
{
    auto *toggle = new widget::ToggleButtonGroup;
    toggle->setOn(on);
    return toggle;
}

widget::ButtonGroup *options(const QStringList &captions, int checked)
{
    auto *group = new widget::ButtonGroup;
    for (int i = 0; i < captions.size(); ++i)
        group->addButton(captions.at(i), i == checked);
    return group;
}

// A section's page: a titled box holding a form.
QFormLayout *addPage(QStackedWidget *pages, const QString &title)
{
    auto *box = new QGroupBox(title);
    pages->addWidget(box);
    return new QFormLayout(box);
}

QString styleSheet(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(file.readAll());
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A settings form made of ko_qtToolkit_cxx widgets."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render the window to a PNG <file> and exit."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.process(app);

    const QString lightSheet = styleSheet(QStringLiteral(":/qtToolkit.qss"));
    const QString darkSheet = styleSheet(QStringLiteral(":/ko/qtToolkit-dark.qss"));
    app.setStyleSheet(lightSheet);
    // Numeric entries open the keypad when touched.
    singleton::TextEntry::instance()->setUseKeypad(true);

    QWidget window;
    window.setWindowTitle(QStringLiteral("Settings"));
    new KeypadInsideWindow(window);

    auto *pages = new QStackedWidget;

    QFormLayout *audio = addPage(pages, QStringLiteral("Audio"));
    audio->addRow(QStringLiteral("Sample rate"), choice({QStringLiteral("44.1 kHz"), QStringLiteral("48 kHz"),
                                                         QStringLiteral("96 kHz")}, 1));
    audio->addRow(QStringLiteral("Buffer"), number(16, 2048, 0, QStringLiteral(" samples"), 128));
    audio->addRow(QStringLiteral("Headroom"), number(-24.0, 0.0, 1, QStringLiteral(" dB"), -18.0));
    audio->addRow(QStringLiteral("Phantom power"), onOff(false));
    audio->addRow(QStringLiteral("Meters"), options({QStringLiteral("Peak"), QStringLiteral("RMS"),
                                                     QStringLiteral("Loudness")}, 0));

    QFormLayout *outputs = addPage(pages, QStringLiteral("Outputs"));
    outputs->addRow(QStringLiteral("Main level"), number(-60.0, 10.0, 1, QStringLiteral(" dB"), 0.0));
    outputs->addRow(QStringLiteral("Delay"), number(0.0, 500.0, 1, QStringLiteral(" ms"), 12.5));
    outputs->addRow(QStringLiteral("Mono"), onOff(false));

    QFormLayout *recording = addPage(pages, QStringLiteral("Recording"));
    recording->addRow(QStringLiteral("File name"), text(QString(), QStringLiteral("Take name")));
    recording->addRow(QStringLiteral("Format"), choice({QStringLiteral("WAV, 24 bit"), QStringLiteral("WAV, 32 bit float"),
                                                        QStringLiteral("FLAC")}, 0));
    recording->addRow(QStringLiteral("Pre-roll"), number(0.0, 10.0, 1, QStringLiteral(" s"), 2.0));
    recording->addRow(QStringLiteral("Start on signal"), onOff(true));

    QFormLayout *network = addPage(pages, QStringLiteral("Network"));
    network->addRow(QStringLiteral("Device name"), text(QStringLiteral("Stage box, left side of the stage")));
    network->addRow(QStringLiteral("DHCP"), onOff(true));
    network->addRow(QStringLiteral("Address"), text(QStringLiteral("192.168.1.40")));
    network->addRow(QStringLiteral("Control port"), number(1024, 65535, 0, QString(), 9000));

    // The theme buttons swap the application's style sheet; every widget follows at once.
    QFormLayout *display = addPage(pages, QStringLiteral("Display"));
    auto *theme = options({QStringLiteral("Light"), QStringLiteral("Dark")}, 0);
    QObject::connect(theme, &widget::ButtonGroup::buttonToggled, &app,
                     [&app, &lightSheet, &darkSheet](int id, bool checked) {
                         if (checked)
                             app.setStyleSheet(id == 1 ? darkSheet : lightSheet);
                     });
    display->addRow(QStringLiteral("Theme"), theme);
    display->addRow(QStringLiteral("Brightness"), number(10, 100, 0, QStringLiteral(" %"), 80));
    display->addRow(QStringLiteral("Dim after"), number(0, 60, 0, QStringLiteral(" min"), 5));
    display->addRow(QStringLiteral("Language"), choice({QStringLiteral("English"), QStringLiteral("Deutsch"),
                                                        QStringLiteral("Français"), QStringLiteral("Español")}, 0));

    QFormLayout *remote = addPage(pages, QStringLiteral("Remote"));
    remote->addRow(QStringLiteral("Remote control"), onOff(false));
    remote->addRow(QStringLiteral("Password"), text(QString(), QStringLiteral("None")));
    remote->addRow(QStringLiteral("Timeout"), number(1, 600, 0, QStringLiteral(" s"), 30));

    QFormLayout *system = addPage(pages, QStringLiteral("System"));
    system->addRow(QStringLiteral("Clock source"), choice({QStringLiteral("Internal"), QStringLiteral("Word clock"),
                                                           QStringLiteral("AES3 input")}, 0));
    system->addRow(QStringLiteral("Automatic updates"), onOff(true));
    system->addRow(QStringLiteral("Fan"), options({QStringLiteral("Quiet"), QStringLiteral("Normal"),
                                                   QStringLiteral("Full")}, 1));

    // The list of sections: one checkable button a row, one of them current, paged by the arrow
    // buttons above and below it rather than by scroll bars.
    auto *sections = new widget::listWithButtons::WidgetBase(QStringLiteral("Sections"),
                                                            widget::listWithButtons::Direction::Vertical);
    for (int i = 0; i < pages->count(); ++i) {
        auto *button = new QPushButton(pages->widget(i)->property("title").toString());
        button->setCheckable(true);
        sections->addItem(button);
        // Rows a finger hits easily; the list pages when they do not all fit.
        sections->item(i)->setSizeHint(QSize(button->sizeHint().width(), 60));
    }
    sections->instrument();
    sections->getList()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sections->getList()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sections->setFixedWidth(180);
    QObject::connect(sections, &widget::listWithButtons::WidgetBase::currentRowChanged, pages,
                     &QStackedWidget::setCurrentIndex);
    sections->setCurrentRow(0);

    auto *layout = new QHBoxLayout(&window);
    layout->addWidget(sections);
    layout->addWidget(pages, 1);
    window.resize(800, 480);
    window.show();

    if (parser.isSet(screenshot)) {
        QApplication::processEvents();
        const QString file = parser.value(screenshot);
        if (!window.grab().save(file, "PNG")) {
            QTextStream(stderr) << "could not write " << file << '\n';
            return 1;
        }
        return 0;
    }
    return app.exec();
}
