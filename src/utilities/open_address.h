#pragma once

#include <QString>

/// Whether it is a web or mail address that may be handed over. One without a scheme is a web address; any other
/// scheme, which a file of unknown origin may name, would start who knows what.
bool CanBeOpened(const QString& address);

/// Opens it in the default program. It must be one that can be opened; a failure is not reported. A mail address is
/// opened without its parameters.
void OpenAddress(const QString& address);
