#pragma once

#include <QString>
#include <QTemporaryDir>

namespace tarvo {

/// What the companion finds on the demo's disk: settings, in a folder that goes with the object, and access points.
class DemoFolder {
public:
    /// Makes the folder the user's configuration folder (XDG Base Directory), and the sample profiles the ones that are
    /// used. To be called before other threads start.
    DemoFolder();

    /// Writes settings that support no modem yet, and lead to pages on @p authority, the modem's server.
    /// @return whether they could be written
    bool writeSettings(const QString &authority) const;

    /// Takes the folder away before its object goes.
    void remove() { m_folder.remove(); }

private:
    QTemporaryDir m_folder;
};

} // namespace tarvo
