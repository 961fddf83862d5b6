#include "app/command/CommandLine.h"

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// @return what @p word of `tarvo status` changes in @p request; false when it is none of its options
bool takeOption(Request &request, const QString &word)
{
    if (word == u"--json")
        request.form = StateForm::Json;
    else if (word == u"--format=waybar")
        request.form = StateForm::Waybar;
    else if (word == u"--follow")
        request.follows = true;
    else if (word == u"--wait")
        request.waits = true;
    else
        return false;
    return true;
}

std::variant<Request, QString> parseStatus(QStringList words)
{
    Request request{.kind = Request::Kind::Status};
    const auto format = words.indexOf(u"--format"_s);
    if (format >= 0 && format + 1 < words.size())
        words[format] += u'=' + words.takeAt(format + 1);
    for (const QString &word : std::as_const(words)) {
        if (!takeOption(request, word))
            return u"unknown argument %1"_s.arg(word);
    }
    return request;
}

std::variant<Request, QString> parseOpen(const QStringList &words)
{
    const QStringList pages{u"home"_s, u"firmware"_s, u"limit"_s, u"modem"_s};
    if (words.size() != 1 || !pages.contains(words.first()))
        return u"open takes one of "_s + pages.join(u", "_s);
    return Request{.kind = Request::Kind::Open, .page = words.first()};
}

} // namespace

std::variant<Request, QString> parseArguments(const QStringList &arguments)
{
    const QString &command = arguments.first();
    const QStringList others = arguments.mid(1);
    if (command == u"status")
        return parseStatus(others);
    if (command == u"open")
        return parseOpen(others);
    const std::pair<QString, Request::Kind> simple[] = {{u"--help"_s, Request::Kind::Help},
                                                        {u"--version"_s, Request::Kind::Version},
                                                        {u"show"_s, Request::Kind::Show},
                                                        {u"quit"_s, Request::Kind::Quit}};
    for (const auto &[word, kind] : simple) {
        if (command == word && others.isEmpty())
            return Request{.kind = kind};
    }
    return u"unknown argument %1"_s.arg(others.value(0, command));
}

QString helpText()
{
    return u"Usage: tarvo [COMMAND]\n"
           "Shows the state of a USB broadband modem in the status bar, and keeps running.\n"
           "When it runs already, shows its status window.\n\n"
           "The commands ask the one that runs, and start nothing:\n"
           "  status [--json | --format waybar] [--follow] [--wait]\n"
           "             Print how things stand; with --follow, again after each change.\n"
           "  show       Show the status window.\n"
           "  open PAGE  Open a page: home, firmware, limit or modem.\n"
           "  quit       End it.\n\n"
           "  --help     Show this text.\n"
           "  --version  Show the version.\n\n"
           "Settings are made with tarvo-setup(1). See tarvo(1) for more.\n"_s;
}

} // namespace tarvo
