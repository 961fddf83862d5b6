#include "apn/ProfileFile.h"

#include "platform/StrictUtf8.h"

#include <QFile>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr auto recordSize = static_cast<qsizetype>(profileRecordSize);
constexpr auto blockSize = static_cast<qsizetype>(profileBlockSize);

ProfileBytes unreadable(const std::error_code &error)
{
    return {std::nullopt, u"it cannot be read: "_s + QString::fromStdString(error.message())};
}

/// @return the text up to the first zero byte; nil when it is no UTF-8, or something follows
std::optional<QString> textOf(const PlainBlock &plain)
{
    const auto end = std::ranges::find(plain, '\0');
    if (std::any_of(end, plain.end(), [](char byte) { return byte != 0; }))
        return std::nullopt;
    return strictUtf8(QByteArrayView(plain.begin(), end), ByteOrderMark::Keep);
}

} // namespace

CipherInputs::CipherInputs(QByteArrayView file)
    : m_file(file)
{
}

std::optional<ProfileBlock> CipherInputs::at(qsizetype record)
{
    findTextFrom(record);
    // A line end at or after the block's end leaves the record's own bytes at the start of the text, so whether that is
    // UTF-8 matters only for one before it. Each text is therefore checked once, not once a record.
    const bool cutsBlock = m_lastLineEnd >= record && m_lastLineEnd - record < blockSize;
    if (cutsBlock && m_file.sliced(record, m_textEnd - record).isValidUtf8())
        return std::nullopt;
    const auto *bytes = reinterpret_cast<const unsigned char *>(m_file.data()) + record;
    return ProfileBlock(bytes, profileBlockSize);
}

void CipherInputs::findTextFrom(qsizetype record)
{
    if (record < m_textEnd)
        return;
    const qsizetype zero = m_file.indexOf('\0', record);
    m_textEnd = zero < 0 ? m_file.size() : zero;
    const qsizetype lineEnd = m_file.sliced(record, m_textEnd - record).lastIndexOf("\r\n");
    m_lastLineEnd = lineEnd < 0 ? -1 : record + lineEnd;
}

ProfileBytes readProfileBytes(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    std::error_code error;
    const auto status = std::filesystem::status(name.toStdString(), error);
    if (!std::filesystem::exists(status))
        return unreadable(error);
    if (!std::filesystem::is_regular_file(status))
        return {std::nullopt, u"it is no regular file"_s};

    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return unreadable(std::error_code(errno, std::generic_category()));
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    QByteArray bytes = file.read(maximumProfileSize + 1);
    if (file.error() != QFile::NoError)
        return {std::nullopt, u"it cannot be read: "_s + file.errorString()};
    if (bytes.size() > maximumProfileSize)
        return {std::nullopt, u"it is larger than %1 bytes"_s.arg(maximumProfileSize)};
    return {std::move(bytes), {}};
}

ProfileText decodeProfile(QByteArrayView file, const ProfileKey &key)
{
    if (file.size() % recordSize != 0)
        return {std::nullopt, u"its length is no multiple of %1 bytes"_s.arg(recordSize)};
    BlockDecoder decoder = key.decoder();
    CipherInputs inputs(file);
    QString text;
    for (qsizetype record = 0; record < file.size(); record += recordSize) {
        const auto input = inputs.at(record);
        const auto plain = input ? decoder.decrypt(*input) : std::nullopt;
        if (!plain)
            return {std::nullopt, u"record %1 does not decode"_s.arg(record / recordSize + 1)};
        const auto piece = textOf(*plain);
        if (!piece)
            return {std::nullopt, u"record %1 holds no UTF-8 text alone"_s.arg(record / recordSize + 1)};
        text += *piece;
    }
    return {std::move(text), {}};
}

ProfileText readProfile(const QString &path, const ProfileKey &key)
{
    const ProfileBytes file = readProfileBytes(path);
    if (!file.bytes)
        return {std::nullopt, file.problem};
    return decodeProfile(*file.bytes, key);
}

} // namespace tarvo
