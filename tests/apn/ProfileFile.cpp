#include "apn/ProfileFile.h"

#include "tests/apn/ProfileFolder.h"

#include <random>

using namespace tarvo;

namespace {

/// What CipherInputs promises, word for word and at its full cost.
std::optional<QByteArray> plainlyChosenInput(const QByteArray &file, qsizetype record)
{
    const QByteArray text(file.constData() + record); // to the zero byte, or the one that ends the array
    const qsizetype lineEnd = text.isValidUtf8() ? text.lastIndexOf("\r\n") : -1;
    if (lineEnd < 0)
        return file.mid(record, 128);
    return lineEnd < 128 ? std::nullopt : std::optional(text.first(128));
}

/// A block that was chosen first, with dots up to its last byte, which is zero; and a key that decodes it. With c the
/// block, s the cube root of c less the wanted padded text m, and n = c + s, c^3 is -s^3 modulo n, and c + s - s^3
/// differs from m in its lower two thirds only.
const QByteArray blockStart = "This block holds a line end\r\nand later a zero byte";
const QByteArray blockKey = "MIGcMA0GCSqGSIb3DQEBAQUAA4GKADCBhgKBgFRoaXMgYmxvY2sgaG9sZHMgYSBsaW5lIGVuZA0K"
                            "YW5kIGxhdGVyIGEgemVybyBieXRlLi4uLi4uLi4uLi4uLi4uLi4uLi4uLi4uLi4uLi4uLi4uLi5K"
                            "CF3BGVP71cGcq1vq8pcAh7hblJ5v3CILtUo28Lif9mYFMOKrbuyF6yLfAgED";

} // namespace

TEST(ProfileFile, ARecordWhoseTextEndsBeforeItDoesNotDecode)
{
    const auto key = ProfileKey::fromDer(QByteArray::fromBase64(blockKey));
    ASSERT_TRUE(key);
    const QByteArray block = blockStart.leftJustified(127, '.') + '\0';
    const auto plain = key->decoder().decrypt(
        ProfileBlock(reinterpret_cast<const unsigned char *>(block.constData()), profileBlockSize));
    ASSERT_TRUE(plain && QByteArray(plain->data()).startsWith("{\"index\":3")) << "the block itself is good";
    EXPECT_EQ(decodeProfile(block + "\r\n", *key).problem, u"record 1 does not decode"_s);
    EXPECT_FALSE(readProfileKey(QByteArray::fromBase64(blockKey)).key)
        << "as its exponent is 3, it is not to be trusted";
}

TEST(ProfileFile, ChoosesTheSameBytesAsThePlainRule)
{
    std::mt19937 random(1);
    const QByteArray pieces[] = {"a", "bc", "de", "\r\n", "\xc3\xa9", "\xc3"};
    int tooShort = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray file;
        while (file.size() < 520)
            file += pieces[random() % (3 + round % 4)];
        file.truncate(520);
        for (auto zeros = random() % 5; zeros > 0; --zeros)
            file[static_cast<qsizetype>(random() % file.size())] = '\0';
        if (round % 2)
            file.replace(128, 2, "\r\n").replace(258, 2, "\r\n").replace(388, 2, "\r\n");
        CipherInputs inputs(file);
        for (qsizetype record = 0; record < file.size(); record += 130) {
            const auto expected = plainlyChosenInput(file, record);
            const auto input = inputs.at(record);
            ASSERT_EQ(input.has_value(), expected.has_value()) << round << ' ' << record;
            ASSERT_TRUE(!input
                        || std::equal(input->begin(), input->end(), expected->begin(), expected->end(),
                                      [](unsigned char a, char b) { return a == static_cast<unsigned char>(b); }));
            tooShort += input ? 0 : 1;
        }
    }
    EXPECT_GT(tooShort, 100);
}
