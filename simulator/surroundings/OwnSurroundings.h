#pragma once

#include <QTemporaryDir>

namespace tarvo {

/// What a process finds around itself when nothing of the user's and nothing that is installed shall matter: empty
/// folders (XDG Base Directory) and a home that go with the object, no display, no message bus, no language, no proxy, and
/// files that everybody may read.
///
/// It changes the environment of the process, which those that it starts inherit, and is made before other threads
/// start. At most one in a process.
class OwnSurroundings {
public:
    OwnSurroundings();

private:
    QTemporaryDir m_folder;
};

} // namespace tarvo
