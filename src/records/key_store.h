#pragma once

#include <string>
#include <string_view>

/// The key that opens a protected file: the key derived from the password and the file's salt (its first
/// 16 bytes), as the engine's own default settings derive it. The derivation is the expensive part of opening a file,
/// so its result is kept for the rest of the run. What is returned is the only copy and lives until the keys are wiped.
const std::string& DerivedKeyText(std::string_view password, std::string_view salt);

/// Wipes every kept key from memory.
void WipeDerivedKeys();
