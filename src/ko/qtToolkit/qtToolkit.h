// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_QTTOOLKIT_H
#define KO_QTTOOLKIT_QTTOOLKIT_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <string>

/**
 * \brief Touch-friendly widgets and chart axes for Qt 5.15.
 *
 * Widgets live in \c widget, \c widget::listWithButtons, \c dialog, \c singleton, \c common
 * and \c behavior; chart axes, tickers and helpers in \c charts. The library registers its
 * resource bundle (icons and the style sheet ":/qtToolkit.qss") when it is loaded; the
 * application applies the style sheet itself.
 */
namespace ko::qtToolkit {

/**
 * \brief The library's version text.
 * \return always an empty string: the library reports its version through
 *         getInterfaceVersion() only.
 */
KO_QTTOOLKIT_EXPORT std::string getVersion();

/**
 * \brief The version of the library's programming interface.
 * \return 101
 */
KO_QTTOOLKIT_EXPORT unsigned int getInterfaceVersion();

/**
 * \brief Whether this library serves a client written against interface \a version.
 * \return true exactly when \a version is getInterfaceVersion(); no other version, older or
 *         newer, is accepted.
 */
KO_QTTOOLKIT_EXPORT bool isCompatibleWithInterfaceVersion(unsigned int version);

} // namespace ko::qtToolkit

#endif
