#pragma once

#include "base/failure.h"

#include <QString>

#include <functional>

/// Runs an action that must fail: the reason that a player is told, and the engine's own words behind it. Both are
/// empty when it did not fail.
struct FailureOf
{
    explicit FailureOf(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            reason = QString::fromStdString(failure.Reason());
            detail = QString::fromStdString(failure.Detail());
        }
    }

    QString reason;
    QString detail;
};
