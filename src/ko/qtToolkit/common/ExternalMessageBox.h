// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_COMMON_EXTERNALMESSAGEBOX_H
#define KO_QTTOOLKIT_COMMON_EXTERNALMESSAGEBOX_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QMessageBox>
#include <QString>

class QWidget;

namespace ko::qtToolkit::common {

/**
 * \brief The message boxes of the application, as the library asks for them.
 *
 * The library never shows a message box itself. An application implements this interface and
 * registers it with singleton::ExternalMessageBox::setImplementation(); code that needs a
 * confirmation or an information asks the singleton, which forwards here.
 */
class KO_QTTOOLKIT_EXPORT ExternalMessageBox
{
public:
    /**
     * \brief Asks the user to confirm \a message.
     * \param source the widget the question is about; the box may use it as parent.
     * \param title the box's window title.
     * \param message the question.
     * \param icon the icon the box shows; QMessageBox::NoIcon when the caller left it out.
     * \return the application's answer code, for example a QMessageBox::StandardButton; 0 must
     *         mean "not confirmed".
     */
    virtual int confirm(QWidget &source, const QString &title, const QString &message,
                        QMessageBox::Icon icon) const = 0;

    /**
     * \brief Tells the user \a message.
     * \param source the widget the information is about; the box may use it as parent.
     * \param title the box's window title.
     * \param message the information.
     * \param icon the icon the box shows; QMessageBox::NoIcon when the caller left it out.
     * \return the application's answer code.
     */
    virtual int information(QWidget &source, const QString &title, const QString &message,
                            QMessageBox::Icon icon) const = 0;

    /// \brief Virtual, so that an implementation can be deleted through this interface.
    virtual ~ExternalMessageBox();

protected:
    /// \brief For implementations; the interface holds nothing.
    ExternalMessageBox();
};

} // namespace ko::qtToolkit::common

#endif
