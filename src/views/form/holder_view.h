// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "form_builder.h"

#include <QWidget>

namespace brenvaldo::views {

/// The place of a holder: it shows the views that stand in the holder, in their order, and takes no
/// room while there is none.
class HolderView : public QWidget
{
public:
    HolderView(
        controls::Holder& holder,
        const FormBuilder& builder,
        FormBuilder::Density density,
        QWidget* parent
    );

private:
    void follow();
    void refill();

    controls::Holder& m_holder;
    const FormBuilder& m_builder;
    FormBuilder::Density m_density;
    QStringList m_shown;
};

} // namespace brenvaldo::views
