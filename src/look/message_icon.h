#pragma once

#include <QIcon>

/// The sign of a message: an "i" on a ball for information, a cross for a failure.
QIcon InformationIcon();
QIcon CriticalIcon();
