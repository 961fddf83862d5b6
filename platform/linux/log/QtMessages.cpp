#include "platform/linux/log/QtMessages.h"

#include "platform/SystemLog.h"

#include <QGuiApplication>
#include <QString>
#include <QtGlobal>

#include <unistd.h>

#include <atomic>
#include <cstdlib>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

std::atomic<SystemLog *> destination = nullptr;

void takeMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    SystemLog *const log = destination;
    if (!log)
        return;
    if (type == QtFatalMsg && QGuiApplication::platformName().isEmpty()) {
        // Qt would abort after this message, as if the program were at fault.
        log->write(u"tarvo: no display: neither DISPLAY nor WAYLAND_DISPLAY leads to one that can be drawn on"_s);
        _exit(EXIT_FAILURE);
    }
    log->write(qFormatLogMessage(type, context, text));
}

} // namespace

QtMessages::QtMessages(SystemLog &log)
{
    destination = &log;
    qInstallMessageHandler(takeMessage);
}

QtMessages::~QtMessages()
{
    qInstallMessageHandler(nullptr);
    destination = nullptr;
}

} // namespace tarvo
