// Prints the library's interface version and the first line of its style sheet, read from the
// resource bundle the library registers when it is loaded.
#include <ko/qtToolkit/qtToolkit.h>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    out << "interface version: " << ko::qtToolkit::getInterfaceVersion() << '\n';

    QFile styleSheet(QStringLiteral(":/qtToolkit.qss"));
    if (!styleSheet.open(QIODevice::ReadOnly | QIODevice::Text)) {
        QTextStream(stderr) << "cannot read :/qtToolkit.qss\n";
        return 1;
    }
    const QByteArray text = styleSheet.readAll();
    out << "qtToolkit.qss: " << text.size() << " bytes, starting " << text.left(text.indexOf('\n')) << '\n';
    return ko::qtToolkit::isCompatibleWithInterfaceVersion(101) ? 0 : 1;
}
