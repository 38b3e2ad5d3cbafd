#pragma once

#include <QWidget>

/// Has a control keep its room while it is hidden, so that what lies around it stands still.
template <typename Widget>
Widget* KeepingRoom(Widget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    return widget;
}
