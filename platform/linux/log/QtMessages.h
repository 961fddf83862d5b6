#pragma once

namespace tarvo {

class SystemLog;

/// Takes what Qt has to say to the log, whose lines never block; Qt would write to standard error and wait for its reader.
///
/// When Qt finds no display to draw on, the process ends with a line that says so. At most one object at a time, made
/// before the QApplication.
class QtMessages {
public:
    /// @param log  outlives this object; used on every thread
    explicit QtMessages(SystemLog &log);
    ~QtMessages();
    QtMessages(const QtMessages &) = delete;
    QtMessages &operator=(const QtMessages &) = delete;
};

} // namespace tarvo
