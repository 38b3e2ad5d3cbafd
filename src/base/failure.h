#pragma once

#include <stdexcept>
#include <string>

/// The one type in which the database engine and the file helpers report that something could not be done.
/// `doing` is a whole clause for the player ("The draw could not be stored"), `reason` says why in plain words
/// ("the disk is full"), `detail` holds the engine's or the system's own words.
class Failure : public std::runtime_error
{
public:
    Failure(std::string doingClause, std::string plainReason, std::string ownWords)
        : std::runtime_error(doingClause + ": " + plainReason + " (" + ownWords + ")"),
          doing(std::move(doingClause)),
          reason(std::move(plainReason)),
          detail(std::move(ownWords))
    {
    }

    /// The same failure seen as a part of a larger action, whose clause takes the place of the old one.
    Failure During(std::string doingClause) const { return {std::move(doingClause), reason, detail}; }

    const std::string& Doing() const { return doing; }
    const std::string& Reason() const { return reason; }
    const std::string& Detail() const { return detail; }

private:
    std::string doing;
    std::string reason;
    std::string detail;
};
