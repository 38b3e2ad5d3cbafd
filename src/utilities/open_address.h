#pragma once

#include <QString>

/// Opens a web or mail address in the player's default program. The address is handed over unchanged, save that one
/// without a scheme is taken as http, and a mail address loses its parameters, which could attach a file. Addresses of
/// any other kind than http, https and mailto, which a database of unknown origin may hold, are not opened. Nothing is
/// reported.
void OpenAddress(const QString& address);
