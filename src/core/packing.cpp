#include "core/packing.h"

namespace quillon {
namespace {

constexpr TextView head = "QLNSTATE\x01"; // the last character is the version
constexpr unsigned bitsInByte = 8;
constexpr std::size_t checksumBytes = sizeof(std::uint64_t);

// Fowler, Noll and Vo's. A single byte that differs always shows.
std::uint64_t checksum(TextView bytes) {
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        sum *= 1099511628211U;
    }
    return sum;
}

Text fixedBytes(std::uint64_t number) {
    Text bytes;
    for (std::size_t at = 0; at < sizeof number; ++at, number >>= bitsInByte)
        bytes += static_cast<char>(number & 0xFF);
    return bytes;
}

std::uint64_t fixedNumber(TextView bytes) {
    std::uint64_t number = 0;
    for (std::size_t at = bytes.size(); at > 0; --at)
        number = number << bitsInByte | static_cast<unsigned char>(bytes[at - 1]);
    return number;
}

// Numbers stand in groups of seven bits, the lowest first; the high bit says that more follow.
constexpr unsigned groupBits = 7;
constexpr std::uint64_t goesOn = 0x80;

} // namespace

void Packer::putNumber(std::uint64_t number) {
    for (; number >= goesOn; number >>= groupBits)
        bytes_ += static_cast<char>((number & (goesOn - 1)) | goesOn);
    bytes_ += static_cast<char>(number);
}

void Packer::putText(TextView text) {
    putNumber(text.size());
    bytes_ += text;
}

void Packer::putRepeated(const Packer& piece) {
    const auto [known, added] = repeated_.try_emplace(piece.bytes_, repeated_.size());
    if (!added) return putNumber(firstKnown + known->second);
    putNumber(isNew);
    putText(piece.bytes_);
}

bool Unpacker::takeNumber(std::uint64_t& number) {
    number = 0;
    for (unsigned shift = 0; shift < sizeof number * bitsInByte && !left_.empty(); shift += groupBits) {
        const auto group = static_cast<unsigned char>(left_.front());
        left_.remove_prefix(1);
        number |= (group & (goesOn - 1)) << shift;
        if (group < goesOn) return true;
    }
    return false;
}

bool Unpacker::takeBytes(TextView& bytes, std::uint64_t count) {
    if (count > left_.size()) return false;
    bytes = left_.substr(0, static_cast<std::size_t>(count));
    left_.remove_prefix(bytes.size());
    return true;
}

bool Unpacker::takeText(TextView& text) {
    std::uint64_t length = 0;
    return takeNumber(length) && takeBytes(text, length);
}

bool Unpacker::takeCount(std::size_t& count) {
    std::uint64_t number = 0;
    if (!takeNumber(number) || number > left_.size()) return false;
    count = static_cast<std::size_t>(number);
    return true;
}

bool Unpacker::takeRepeated(TextView& piece) {
    std::uint64_t mark = 0;
    if (!takeNumber(mark) || mark == Packer::none) return false;
    if (mark == Packer::isNew) {
        if (!takeText(piece)) return false;
        repeated_.push_back(piece);
        return true;
    }
    const std::uint64_t at = mark - Packer::firstKnown;
    if (at >= repeated_.size()) return false;
    piece = repeated_[static_cast<std::size_t>(at)];
    if (piece.size() > repeatable_) return false;
    repeatable_ -= piece.size();
    return true;
}

void pack(Packer& out, double number) { out.putBytes(fixedBytes(std::bit_cast<std::uint64_t>(number))); }

bool unpack(Unpacker& in, double& number) {
    TextView bytes;
    if (!in.takeBytes(bytes, sizeof number)) return false;
    number = std::bit_cast<double>(fixedNumber(bytes));
    return true;
}

bool unpack(Unpacker& in, Text& text) {
    TextView found;
    if (!in.takeText(found)) return false;
    text = found;
    return true;
}

Text sealed(TextView bytes) {
    Text whole;
    whole.reserve(head.size() + checksumBytes + bytes.size());
    whole += head;
    whole += fixedBytes(checksum(bytes));
    whole += bytes;
    return whole;
}

std::optional<TextView> opened(TextView sealedBytes) {
    if (!sealedBytes.starts_with(head)) return std::nullopt;
    sealedBytes.remove_prefix(head.size());
    if (sealedBytes.size() < checksumBytes) return std::nullopt;
    const TextView bytes = sealedBytes.substr(checksumBytes);
    if (checksum(bytes) != fixedNumber(sealedBytes.substr(0, checksumBytes))) return std::nullopt;
    return bytes;
}

} // namespace quillon
