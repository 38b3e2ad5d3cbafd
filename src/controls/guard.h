#pragma once

#include <QObject>

#include <functional>
#include <type_traits>

/// Runs a handler. A failure of the database or the disk, or any other exception, ends the handler and is shown in a
/// message box; the program goes on.
void Guard(const std::function<void()>& handler);

/// Connects a signal to a handler that runs under the guard. The handler takes all of the signal's arguments, or none.
template <typename Sender, typename Signal, typename Handler>
void ConnectGuarded(const Sender* sender, Signal signal, const QObject* context, Handler handler)
{
    QObject::connect(sender, signal, context, [handler](auto... arguments) -> void {
        Guard([&] {
            if constexpr (std::is_invocable_v<const Handler&, decltype(arguments)...>)
                handler(arguments...);
            else if constexpr (std::is_invocable_v<const Handler&>)
                handler();
        });
    });
}
