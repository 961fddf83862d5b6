#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace tarvo {

/// What other programs of the user's can read of this one, and ask of it. On the main thread.
class PublicInterface {
public:
    enum class Outcome {
        Done,
        NoSuchMethod,
        NotPossible, ///< at present, or with these arguments
    };

    struct Handlers {
        /// Carries out a call of one of the methods, or has it carried out later.
        std::function<Outcome(const QString &method, const QVariantList &arguments)> call;
        /// Asked each time that somebody reads. @return properties whose changes are not told
        std::function<QVariantMap()> read;
    };

    virtual ~PublicInterface() = default;

    /// Nothing can be called before.
    virtual void setHandlers(const Handlers &handlers) = 0;
    /// Tells all who listen which of @p properties are different from what was told, once a second at most.
    virtual void setProperties(const QVariantMap &properties) = 0;
};

} // namespace tarvo
