#include "apn/ProfileDecoding.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileSelection.h"
#include "apn/tool/FolderReport.h"
#include "apn/tool/ProfileSigner.h"
#include "apn/tool/ProfileSource.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

#include <cstdio>
#include <optional>

namespace {

using namespace tarvo;

/// Exit codes.
enum : int { inOrder = 0, failed = 1, wrongUse = 2 };

const QString keyOption = QStringLiteral("key");
const QString publicKeyOption = QStringLiteral("public-key");
const QString outputOption = QStringLiteral("output");

void print(std::FILE *stream, const QString &line)
{
    QTextStream(stream) << line << Qt::endl;
}

int fail(const QString &subject, const QString &problem, int code = failed)
{
    print(stderr, QStringLiteral("tarvo-profile: %1: %2").arg(subject, problem));
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

int writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return fail(path, file.errorString());
    return inOrder;
}

/// @return what is wrong with @p path as the place for @p source; empty when nothing is
QString placeProblem(const QString &path, const ProfileSource &source)
{
    const QString name = QFileInfo(path).fileName();
    if (source.isNameList != (name == u"profile.xml"))
        return QStringLiteral("a list of names, and nothing else, is called profile.xml");
    if (!name.endsWith(u".xml"))
        return QStringLiteral("the companion reads only names that end in .xml");
    return nameProblems(name.chopped(4)).join(u"; ");
}

int pack(const QCommandLineParser &arguments, const QString &path)
{
    const QString keyPath = arguments.value(keyOption);
    const QString output = arguments.value(outputOption);
    if (keyPath.isEmpty() || output.isEmpty())
        return fail(QStringLiteral("pack"), QStringLiteral("needs --key and --output"), wrongUse);
    const auto pem = readFile(keyPath);
    const auto json = readFile(path);
    if (!pem || !json)
        return failed;
    const auto [signer, keyProblem] = ProfileSigner::fromPem(*pem);
    if (!signer)
        return fail(keyPath, keyProblem);

    if (!json->isValidUtf8())
        return fail(path, QStringLiteral("it is no UTF-8"));
    const ProfileSource source = readSource(QString::fromUtf8(*json));
    for (const QString &problem : source.problems)
        fail(path, problem);
    if (!source.problems.isEmpty())
        return failed;
    if (const QString problem = placeProblem(output, source); !problem.isEmpty())
        return fail(output, problem);
    const auto profile = signer->pack(source.text);
    return profile ? writeFile(output, *profile)
                   : fail(path, QStringLiteral("it would not be read back; is it too long?"));
}

std::optional<ProfileKey> publicKey(const QCommandLineParser &arguments)
{
    const QString path = arguments.value(publicKeyOption);
    if (path.isEmpty() && !builtInProfileKey())
        fail(QStringLiteral("key"), QStringLiteral("none is built in; name one by --public-key"));
    if (path.isEmpty())
        return builtInProfileKey();
    const auto pem = readFile(path);
    if (!pem)
        return std::nullopt;
    auto key = profileKeyFromPem(*pem);
    if (!key)
        fail(path, QStringLiteral("it holds no RSA public key of 1024 bits in PEM form"));
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
        return writeFile(output, profile.text->toUtf8());
    print(stdout, *profile.text);
    return inOrder;
}

int check(const QCommandLineParser &arguments, const QString &path)
{
    const auto key = publicKey(arguments);
    if (!key)
        return failed;
    if (!QFileInfo(path).isDir())
        return fail(path, QStringLiteral("it is no folder"));
    const FolderReport report = reportFolder(path, *key);
    for (const QString &line : report.lines)
        print(stdout, line);
    return report.isInOrder ? inOrder : failed;
}

int about()
{
    const auto &key = builtInProfileKey();
    print(stdout, QStringLiteral("folder: %1").arg(QString::fromUtf8(APN_ROOT)));
    print(stdout,
          key ? QStringLiteral("key: SHA-256 %1").arg(QString::fromLatin1(key->fingerprint().toHex()))
              : QStringLiteral("key: none, so that no access points are sent"));
    return inOrder;
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral("Makes and reads access-point profiles.\n\n"
                                                    "  pack FILE     makes a profile of a JSON file\n"
                                                    "  unpack FILE   shows a profile's text\n"
                                                    "  check DIR     says what the companion makes of a folder\n"
                                                    "  about         tells the companion's folder and key"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({keyOption, QStringLiteral("Private key to pack with, PEM."), QStringLiteral("file")});
    parser.addOption({publicKeyOption,
                      QStringLiteral("Public key to read with, PEM; the companion's own when not given."),
                      QStringLiteral("file")});
    parser.addOption({{QStringLiteral("o"), outputOption}, QStringLiteral("File to write."), QStringLiteral("file")});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("pack, unpack, check or about"));
    parser.addPositionalArgument(QStringLiteral("path"), QStringLiteral("What to work on."));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(QStringLiteral("arguments"), parser.errorText(), wrongUse);
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(inOrder);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();

    const QStringList words = parser.positionalArguments();
    if (words.size() == 2 && words[0] == u"pack")
        return pack(parser, words[1]);
    if (words.size() == 2 && words[0] == u"unpack")
        return unpack(parser, words[1]);
    if (words.size() == 2 && words[0] == u"check")
        return check(parser, words[1]);
    if (words == QStringList(QStringLiteral("about")))
        return about();
    return fail(QStringLiteral("arguments"), QStringLiteral("see tarvo-profile --help"), wrongUse);
}
