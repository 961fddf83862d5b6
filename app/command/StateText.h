#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace tarvo {

/// How `tarvo status` prints what the running companion publishes.
enum class StateForm {
    Line, ///< the summary, in the companion's language
    Json, ///< an object with the names of the interface; what is not known is null
    Waybar, ///< what a custom module of the bar waybar reads (waybar-custom(5), "return-type")
};

/// @param state  the properties by name, made of Qt's own types; empty when no companion runs
/// @return one line of UTF-8, without its end
QByteArray stateText(const QVariantMap &state, StateForm form);

/// @return whether @p state is that of a modem which is connected to its network
bool isConnected(const QVariantMap &state);

} // namespace tarvo
