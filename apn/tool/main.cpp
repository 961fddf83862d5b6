#include "apn/ProfileDecoding.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileSeal.h"
#include "apn/ProfileSelection.h"
#include "apn/tool/FolderReport.h"
#include "apn/tool/PemKeys.h"
#include "apn/tool/ProfileSigner.h"
#include "apn/tool/ProfileSource.h"
#include "platform/LogLine.h"
#include "platform/WholeFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <unistd.h>

#include <cstdio>
#include <optional>

namespace {

using namespace tarvo;
using namespace Qt::StringLiterals;

/// Of files that hold passwords.
constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

/// Exit codes.
enum : int { inOrder = 0, failed = 1, wrongUse = 2 };

const QString keyOption = u"key"_s;
const QString publicKeyOption = u"public-key"_s;
const QString outputOption = u"output"_s;
const QString sealKeyOption = u"seal-key"_s;

/// Prints one line, whatever a file's name or text holds.
void print(std::FILE *stream, const QString &line)
{
    QTextStream(stream) << QString::fromUtf8(escapedText(line)) << Qt::endl;
}

int fail(const QString &subject, const QString &problem, int code = failed)
{
    print(stderr, u"tarvo-profile: %1: %2"_s.arg(subject, problem));
    return code;
}

/// @return the file's bytes; nil, with a message, when it cannot be read
std::optional<QByteArray> readFile(const QString &path)
{
    ProfileBytes file = readProfileBytes(path);
    if (!file.bytes)
        fail(path, file.problem);
    return std::move(file.bytes);
}

int writeFile(const QString &path, const QByteArray &bytes,
              std::optional<QFileDevice::Permissions> permissions = std::nullopt)
{
    const QString problem = writeWholeFile(path, bytes, permissions);
    return problem.isEmpty() ? inOrder : fail(path, problem);
}

/// @return what is wrong with @p path as the place for @p source; empty when nothing is
QString placeProblem(const QString &path, const ProfileSource &source)
{
    const QString name = QFileInfo(path).fileName();
    if (source.isNameList != (name == u"profile.xml"))
        return u"a list of names, and nothing else, is called profile.xml"_s;
    if (!name.endsWith(u".xml"))
        return u"the companion reads only names that end in .xml"_s;
    return nameProblems(name.chopped(4)).join(u"; ");
}

int pack(const QCommandLineParser &arguments, const QString &path)
{
    const QString keyPath = arguments.value(keyOption);
    const QString output = arguments.value(outputOption);
    if (keyPath.isEmpty() || output.isEmpty())
        return fail(u"pack"_s, u"needs --key and --output"_s, wrongUse);
    const auto pem = readFile(keyPath);
    const auto json = readFile(path);
    if (!pem || !json)
        return failed;
    const auto [signer, keyProblem] = ProfileSigner::fromPem(*pem);
    if (!signer)
        return fail(keyPath, keyProblem);

    if (!json->isValidUtf8())
        return fail(path, u"it is no UTF-8"_s);
    const ProfileSource source = readSource(QString::fromUtf8(*json));
    for (const QString &problem : source.problems)
        fail(path, problem);
    if (!source.problems.isEmpty())
        return failed;
    if (const QString problem = placeProblem(output, source); !problem.isEmpty())
        return fail(output, problem);
    const auto profile = signer->pack(source.text);
    return profile ? writeFile(output, *profile) : fail(path, u"it would not be read back; is it too long?"_s);
}

std::optional<ProfileKey> publicKey(const QCommandLineParser &arguments)
{
    const QString path = arguments.value(publicKeyOption);
    if (path.isEmpty() && !builtInProfileKey().key)
        fail(u"key"_s, builtInProfileKey().problem + u"; name one by --public-key"_s);
    if (path.isEmpty())
        return builtInProfileKey().key;
    const auto pem = readFile(path);
    if (!pem)
        return std::nullopt;
    auto [key, problem] = profileKeyFromPem(*pem);
    if (!key)
        fail(path, problem);
    return key;
}

int unpack(const QCommandLineParser &arguments, const QString &path)
{
    const auto key = publicKey(arguments);
    if (!key)
        return failed;
    const ProfileText profile = readProfile(path, *key);
    if (!profile.text)
        return fail(path, profile.problem);
    const QString output = arguments.value(outputOption);
    if (!output.isEmpty())
        return writeFile(output, profile.text->toUtf8(), ownerOnly);
    if (isatty(STDOUT_FILENO) == 1)
        print(stdout, *profile.text);
    else
        QTextStream(stdout) << *profile.text << Qt::endl;
    return inOrder;
}

/// @return the rule for seals, by the key that is named or by the one built in; nil, with a message, when there is no such
std::optional<SealRule> sealRule(const QCommandLineParser &arguments)
{
    const QString path = arguments.value(sealKeyOption);
    if (path.isEmpty())
        return builtInSealRule();
    const auto pem = readFile(path);
    const auto key = pem ? sealKeyFromPem(*pem) : std::nullopt;
    if (pem && !key)
        fail(path, u"it holds no Ed25519 public key in PEM form"_s);
    return key ? std::optional(SealRule{key, true}) : std::nullopt;
}

int check(const QCommandLineParser &arguments, const QString &path)
{
    const auto key = publicKey(arguments);
    const auto rule = sealRule(arguments);
    if (!key || !rule)
        return failed;
    if (!QFileInfo(path).isDir())
        return fail(path, u"it is no folder"_s);
    const FolderReport report = reportFolder(path, *key, *rule);
    for (const QString &line : report.lines)
        print(stdout, line);
    return report.isInOrder ? inOrder : failed;
}

int seal(const QCommandLineParser &arguments, const QString &path)
{
    const QString keyPath = arguments.value(keyOption);
    if (keyPath.isEmpty())
        return fail(u"seal"_s, u"needs --key"_s, wrongUse);
    if (!QFileInfo(path).isDir())
        return fail(path, u"it is no folder"_s);
    const auto pem = readFile(keyPath);
    if (!pem)
        return failed;
    const auto [key, problem] = privateKeyFromPem(*pem);
    if (!key)
        return fail(keyPath, problem);
    const QString root = path.endsWith(u'/') ? path : path + u'/';
    const FolderContent content = readFolderContent(root, {});
    if (!content.problem.isEmpty())
        return fail(path, content.problem);
    const auto made = makeSeal(content.text, key.get());
    return made ? writeFile(sealPath(root), *made) : fail(keyPath, u"it is no Ed25519 key"_s);
}

/// @return how @p rule is told
QString sealText(const SealRule &rule)
{
    if (!rule.key)
        return u"none is checked"_s;
    const QString demand = rule.isDemanded ? u"demanded"_s : u"checked where there is one"_s;
    return u"%1, SHA-256 %2"_s.arg(demand, QString::fromLatin1(rule.key->fingerprint().toHex()));
}

int about()
{
    const auto &[key, problem] = builtInProfileKey();
    print(stdout, u"folder: %1"_s.arg(QString::fromUtf8(APN_ROOT)));
    print(stdout,
          key ? u"key: SHA-256 %1"_s.arg(QString::fromLatin1(key->fingerprint().toHex()))
              : u"key: %1, and no access points are sent"_s.arg(problem));
    print(stdout, u"seal: "_s + sealText(builtInSealRule()));
    return inOrder;
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(u"Makes and reads access-point profiles.\n\n"
                                     "  pack FILE     makes a profile of a JSON file\n"
                                     "  unpack FILE   shows a profile's text\n"
                                     "  check DIR     says what the companion makes of a folder\n"
                                     "  seal DIR      writes its profile.sig, over all files that are in it\n"
                                     "  about         tells the companion's folder and key"_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({keyOption, u"Private key to pack or seal with, PEM."_s, u"file"_s});
    parser.addOption(
        {publicKeyOption, u"Public key to read with, PEM; the companion's own when not given."_s, u"file"_s});
    parser.addOption({sealKeyOption, u"Public key to check a seal with, PEM."_s, u"file"_s});
    parser.addOption({{u"o"_s, outputOption}, u"File to write."_s, u"file"_s});
    parser.addPositionalArgument(u"command"_s, u"pack, unpack, check, seal or about"_s);
    parser.addPositionalArgument(u"path"_s, u"What to work on."_s);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(u"arguments"_s, parser.errorText(), wrongUse);
    if (parser.isSet(u"help"_s))
        parser.showHelp(inOrder);
    if (parser.isSet(u"version"_s))
        parser.showVersion();

    const QStringList words = parser.positionalArguments();
    if (words.size() == 2 && words[0] == u"pack")
        return pack(parser, words[1]);
    if (words.size() == 2 && words[0] == u"unpack")
        return unpack(parser, words[1]);
    if (words.size() == 2 && words[0] == u"check")
        return check(parser, words[1]);
    if (words.size() == 2 && words[0] == u"seal")
        return seal(parser, words[1]);
    if (words == QStringList(u"about"_s))
        return about();
    return fail(u"arguments"_s, u"see tarvo-profile --help"_s, wrongUse);
}
