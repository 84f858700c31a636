// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#ifndef KO_QTTOOLKIT_WIDGET_COMBOBOX_H
#define KO_QTTOOLKIT_WIDGET_COMBOBOX_H

#include <ko/qtToolkit/qtToolkit_export.h>

#include <QComboBox>

#include <memory>

namespace ko::qtToolkit::widget {

class ComboBoxPrivate;

/**
 * \brief A combo box for touch panels.
 *
 * It takes no keyboard focus and ignores the mouse wheel, so a stray wheel never changes the
 * selection. Its pop-up list shows the current entry in bold and in the combo box's font, and
 * has no scroll bars: fading bands at its top and bottom edges tell that there is more to
 * scroll that way. Items are added with the usual QComboBox functions.
 *
 * \warning The combo box installs its own model and pop-up view; replacing them with
 * setModel() or setView() loses the bold current entry or the bands.
 */
class KO_QTTOOLKIT_EXPORT ComboBox : public QComboBox
{
public:
    /**
     * \brief An empty combo box.
     * \param parent the owner of the combo box, or null
     */
    explicit ComboBox(QWidget *parent = nullptr);
    ~ComboBox() override;

private:
    std::unique_ptr<ComboBoxPrivate> const d;
};

} // namespace ko::qtToolkit::widget

#endif
