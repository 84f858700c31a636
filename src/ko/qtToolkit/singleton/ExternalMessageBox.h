// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_SINGLETON_EXTERNALMESSAGEBOX_H
#define KO_QTTOOLKIT_SINGLETON_EXTERNALMESSAGEBOX_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QMessageBox>
#include <QObject>
#include <QString>

#include <memory>

class QWidget;

namespace ko::qtToolkit::common {
class ExternalMessageBox;
}

namespace ko::qtToolkit::singleton {

class ExternalMessageBoxPrivate;

/**
 * \brief The application-wide entry point for message boxes.
 *
 * Forwards confirm() and information() to the common::ExternalMessageBox the application has
 * registered. Both are invokable through the meta-object system, where the icon may be left
 * out. Created on the first call of instance(), never destroyed.
 */
class KO_QTTOOLKIT_EXPORT ExternalMessageBox : public QObject
{
    Q_OBJECT

public:
    /// \brief The one instance, created on the first call.
    static ExternalMessageBox *instance();

    ~ExternalMessageBox() override;

    /**
     * \brief Registers \a implementation, replacing any earlier one; null unregisters.
     *
     * The implementation is not owned and must outlive its registration.
     */
    void setImplementation(const common::ExternalMessageBox *implementation);

    /// \brief The registered implementation, or null.
    const common::ExternalMessageBox *implementation() const;

    /**
     * \brief Asks the registered implementation to confirm \a message.
     * \return the implementation's answer, or 0 at once when none is registered.
     */
    Q_INVOKABLE int confirm(QWidget &source, const QString &title, const QString &message,
                            QMessageBox::Icon icon = QMessageBox::NoIcon) const;

    /**
     * \brief Gives \a message to the registered implementation's information box.
     * \return the implementation's answer, or 0 at once when none is registered.
     */
    Q_INVOKABLE int information(QWidget &source, const QString &title, const QString &message,
                                QMessageBox::Icon icon = QMessageBox::NoIcon) const;

private:
    ExternalMessageBox();

    std::unique_ptr<ExternalMessageBoxPrivate> const d;
};

} // namespace ko::qtToolkit::singleton

#endif
