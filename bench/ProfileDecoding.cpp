#include "apn/ProfileFile.h"
#include "apn/ProfileSeal.h"
#include "apn/ProfileSelection.h"
#include "apn/tool/ProfileSigner.h"
#include "bench/NoLog.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>

#include <array>

namespace {

using namespace tarvo;
using namespace Qt::StringLiterals;

QByteArray privateKeyPem()
{
    QFile file(QStringLiteral(TARVO_DEMO_PRIVATE_KEY));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const ProfileSigner &signer()
{
    static const ProfileSigner signer = ProfileSigner::fromPem(privateKeyPem()).signer.value();
    return signer;
}

QByteArray fileOf(qsizetype records)
{
    return signer().pack(QString(records * static_cast<qsizetype>(maximumBlockTextSize), u'x')).value();
}

/// The library's own operation, and nothing else: what decoding can at best reach.
void bareOperation(benchmark::State &state)
{
    const QByteArray pem = privateKeyPem();
    BIO *bio = BIO_new_mem_buf(pem.constData(), static_cast<int>(pem.size()));
    EVP_PKEY *key = PEM_read_bio_PrivateKey(bio, nullptr, nullptr, nullptr);
    EVP_PKEY_CTX *context = EVP_PKEY_CTX_new(key, nullptr);
    EVP_PKEY_verify_recover_init(context);
    EVP_PKEY_CTX_set_rsa_padding(context, RSA_PKCS1_PADDING);
    const QByteArray record = fileOf(1);
    std::array<unsigned char, profileBlockSize> plain;
    for (auto _ : state) {
        std::size_t size = plain.size();
        if (EVP_PKEY_verify_recover(context, plain.data(), &size,
                                    reinterpret_cast<const unsigned char *>(record.constData()), profileBlockSize)
            <= 0)
            state.SkipWithError("the block does not decode");
        benchmark::DoNotOptimize(plain);
    }
    state.counters["blocks"] = benchmark::Counter(1, benchmark::Counter::kIsIterationInvariantRate);
    EVP_PKEY_CTX_free(context);
    EVP_PKEY_free(key);
    BIO_free(bio);
}
BENCHMARK(bareOperation);

void decodeAFile(benchmark::State &state)
{
    const QByteArray file = fileOf(state.range(0));
    const ProfileKey key = signer().publicKey();
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeProfile(file, key));
    state.counters["blocks"] =
        benchmark::Counter(static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(decodeAFile)->Arg(1)->Arg(100)->Arg(2000);

/// The largest file that is one text from its first byte to its last, so that every record's view goes to the end.
void chooseInputsInOneLongText(benchmark::State &state)
{
    const QByteArray file = (QByteArray(128, 'x') + "\r\n").repeated(state.range(0));
    for (auto _ : state) {
        CipherInputs inputs(file);
        for (qsizetype record = 0; record < file.size(); record += static_cast<qsizetype>(profileRecordSize))
            benchmark::DoNotOptimize(inputs.at(record));
    }
}
BENCHMARK(chooseInputsInOneLongText)->Arg(1000)->Arg(2000);

void selectFromAFolder(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QByteArray root = folder.path().toUtf8() + '/';
    const char *const before = std::exchange(APN_ROOT, root.constData());
    const QByteArray profile = fileOf(3);
    QStringList names;
    for (int i = 0; i < state.range(0); ++i) {
        names.append(u"profile%1"_s.arg(i));
        QFile file(folder.filePath(names.last() + u".xml"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(profile) != profile.size())
            state.SkipWithError("no room for the files");
    }
    NoLog log;
    for (auto _ : state)
        benchmark::DoNotOptimize(getValidParsedContentFromApnProfiles(names.join(u'*'), {}, log, {}));
    APN_ROOT = before;
}
BENCHMARK(selectFromAFolder)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
