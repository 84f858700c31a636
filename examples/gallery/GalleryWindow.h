// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_GALLERY_GALLERYWINDOW_H
#define KO_QTTOOLKIT_GALLERY_GALLERYWINDOW_H

#include <QSize>
#include <QString>
#include <QTabWidget>
#include <QVector>

class QPushButton;
class QTextStream;

namespace gallery {

/// A window size the gallery is laid out for.
struct WindowSize
{
    QString name; ///< what a screenshot's file name carries for it; empty for the desktop size
    QSize size;
};

/// The desktop window first, then the small touch panels: 800 x 480 and 1024 x 600.
QVector<WindowSize> windowSizes();

/**
 * The gallery window: one tab per registered page, in their order, and the switch between the
 * light and the dark sheet in the corner of the tabs.
 */
class Window : public QTabWidget
{
    Q_OBJECT

public:
    explicit Window(QWidget *parent = nullptr);

    /// Applies the dark sheet to the application when \a dark is true, the light one otherwise.
    void setDarkTheme(bool dark);

    /// The switch in the corner of the tabs.
    QPushButton *themeSwitch() const;

    /**
     * Renders every page at every size of windowSizes() in both themes to \a directory, named
     * `<nn>-<page>[-<size>][-dark].png`, and prints each file name to \a out. Returns false,
     * with a message on standard error, when a file cannot be written.
     */
    bool renderScreenshots(const QString &directory, QTextStream &out);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QString m_lightSheet;
    QString m_darkSheet;
    QPushButton *m_themeSwitch;
};

} // namespace gallery

#endif
