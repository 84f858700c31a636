// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_TESTSUPPORT_H
#define KO_QTTOOLKIT_TESTSUPPORT_H

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QResource>
#include <QString>
#include <QStringList>

namespace ko::qtToolkit::test {

/// The font the set-up script installs: text metrics in tests must not depend on what else a
/// machine has.
inline QFont fixedFont(int pixelSize = 12)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Makes fixedFont() the application font; call in initTestCase().
inline void useFixedFont(int pixelSize = 12)
{
    QApplication::setFont(fixedFont(pixelSize));
}

/// The style sheet at the resource \a path as text; empty when it cannot be read.
inline QString styleSheetAt(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll());
}

/// The library's style sheet as the bundle holds it; empty when it cannot be read.
inline QString toolkitStyleSheet()
{
    return styleSheetAt(QStringLiteral(":/qtToolkit.qss"));
}

/// The library's dark style sheet; empty when it cannot be read.
inline QString darkToolkitStyleSheet()
{
    return styleSheetAt(QStringLiteral(":/ko/qtToolkit-dark.qss"));
}

/// Where tests keep rendered images for a person to look at.
inline QString artifactPath(const QString &fileName)
{
    const QString dir = QStringLiteral(KO_TEST_ARTIFACT_DIR);
    QDir().mkpath(dir);
    return dir + QLatin1Char('/') + fileName;
}

/// Colour of a pixel without its alpha.
inline QColor rgbAt(const QImage &image, int x, int y)
{
    return QColor(image.pixelColor(x, y).rgb());
}

// Collects the messages logged while it lives, instead of printing them: all of them, or each
// distinct text once.
class MessageLog
{
public:
    enum Mode { Every, Distinct };

    explicit MessageLog(Mode mode = Every)
    {
        s_mode = mode;
        s_messages.clear();
        m_previous = qInstallMessageHandler(&MessageLog::handle);
    }
    ~MessageLog() { qInstallMessageHandler(m_previous); }

    QStringList messages() const { return s_messages; }

private:
    static void handle(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        if (s_mode == Every || !s_messages.contains(message))
            s_messages.append(message);
    }

    static inline Mode s_mode = Every;
    static inline QStringList s_messages;
    QtMessageHandler m_previous;
};

/// Whether the resource at \a path is stored zlib-compressed, and smaller for it.
inline bool isStoredZlibCompressed(const QString &path)
{
    const QResource resource(path);
    return resource.isValid() && resource.compressionAlgorithm() == QResource::ZlibCompression
        && resource.size() < resource.uncompressedSize();
}

/// The opaque pixels of the icon at \a path drawn at 24 x 24: how many there are, and how many of
/// them are not \a colour.
struct IconCoverage
{
    int opaque = 0;
    int otherColour = 0;
};

inline IconCoverage iconCoverage(const QString &path, const QColor &colour)
{
    const QImage image = QIcon(path).pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
    IconCoverage coverage;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() != 255)
                continue;
            ++coverage.opaque;
            if (QColor(pixel.rgb()).name() != colour.name())
                ++coverage.otherColour;
        }
    }
    return coverage;
}

} // namespace ko::qtToolkit::test

#endif
