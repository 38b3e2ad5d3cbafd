#pragma once

#include <QString>

#include <string_view>

/// A text of a database file, which are in UTF-8, as the desktop holds it.
inline QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The beginning of such a text, at most 200 characters of it, for a label or a grid. A file may hold a text of any
/// length, and measuring or drawing a very long one takes seconds and gibibytes.
inline QString ShownText(std::string_view text)
{
    constexpr qsizetype most = 200;
    constexpr std::size_t bytesOfACharacter = 4;
    const QString beginning = FromUtf8(text.substr(0, (most + 1) * bytesOfACharacter));
    return beginning.size() <= most ? beginning : beginning.left(most) + QChar(u'\x2026');
}
