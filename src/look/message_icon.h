#pragma once

#include <QIcon>

/// The sign of a message: an "i" on a ball for information, a cross for a failure. It is painted anew in the size that
/// is asked for, so that it is sharp at every scale.
QIcon InformationIcon();
QIcon CriticalIcon();
