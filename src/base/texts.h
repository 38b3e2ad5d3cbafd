#pragma once

#include <QString>

#include <string_view>

/// A text of a database file, which are in UTF-8, as the desktop holds it.
inline QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
