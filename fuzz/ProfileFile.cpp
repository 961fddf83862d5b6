#include "apn/ProfileFile.h"

#include "apn/DefaultApn.h"
#include "apn/tool/ProfileSigner.h"
#include "apn/tool/ProfileSource.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

ProfileSigner readSigner()
{
    QFile file(QStringLiteral(TARVO_DEMO_PRIVATE_KEY));
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    return ProfileSigner::fromPem(file.readAll()).signer.value();
}

/// Records with good blocks, whatever is in them: chance finds none.
QByteArray wellMadeFile(const ProfileSigner &signer, QByteArrayView plain)
{
    QByteArray file;
    while (!plain.isEmpty()) {
        const qsizetype size = std::min<qsizetype>(plain.size(), 1 + static_cast<unsigned char>(plain[0]) % 117);
        file += signer.makeRecord(plain.first(size)).value();
        plain = plain.sliced(size);
    }
    return file;
}

void useText(const ProfileText &profile)
{
    if (profile.text.has_value() != profile.problem.isEmpty())
        std::abort();
    if (!profile.text)
        return;
    recordProblems(*profile.text);
    const QStringList records = profile.text->split(u'*');
    chooseDefaultApn(u"A"_s, {u"A"_s}, records, readApnList(*profile.text).apns);
}

} // namespace

/// An odd first byte: the rest is a file. An even one: the rest is the plain text of a well-made file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static const ProfileSigner signer = readSigner();
    static const ProfileKey key = signer.publicKey();
    if (size == 0)
        return 0;
    const QByteArrayView rest(bytes + 1, static_cast<qsizetype>(size) - 1);
    useText(decodeProfile(bytes[0] % 2 ? rest.toByteArray() : wellMadeFile(signer, rest), key));
    return 0;
}
