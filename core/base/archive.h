#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/text.h"

/// The three archives over which every record's layout is written once: one function `Layout(archive, record)` lists
/// the members in file order, and reading, writing and sizing all run that list. Integers are little-endian, floats
/// IEEE 754 singles, text single-byte.
namespace veraqua {

template <class T>
concept StoredScalar = std::same_as<T, std::int16_t> || std::same_as<T, std::int32_t> || std::same_as<T, float>;

/// Takes records from the bytes of a file. A file that ends too early or holds a number that is not finite is a
/// RunTimeFailure that names the file and the place.
class Reader {
  public:
    /// `bytes` stand in the file from `offset` on: messages count from the file's start.
    Reader(std::string_view bytes, std::string_view fileName, std::size_t offset = 0)
        : bytes_(bytes), fileName_(fileName), offset_(offset) {}

    template <class... Members>
    void operator()(Members&... members) {
        (Take(members), ...);
    }

    std::size_t Position() const { return position_; }
    void Skip(std::size_t count) { Next(count); }

    /// RunTimeFailure unless `count` bytes are left: a count read from a file is held against this before memory is
    /// asked for.
    void Expect(std::size_t count) const {
        if (count > bytes_.size() - position_)
            FailIn(fileName_, fmt::format("{} bytes, but its counts ask for {}.", bytes_.size(), position_ + count));
    }

    /// Fails because of the number last taken.
    [[noreturn]] void Refuse(std::string_view what) const {
        FailIn(fileName_, fmt::format("{} at byte {}.", what, offset_ + lastNumber_));
    }

  private:
    std::string_view Next(std::size_t count) {
        Expect(count);
        const std::string_view bytes = bytes_.substr(position_, count);
        position_ += count;
        return bytes;
    }

    /// Bytes in the order of the file as one number: the compiler makes a single load of it.
    template <class Bits, std::size_t... Place>
    static Bits BitsOf(std::string_view bytes, std::index_sequence<Place...>) {
        return static_cast<Bits>(((Bits{static_cast<unsigned char>(bytes[Place])} << (8 * Place)) | ...));
    }

    template <StoredScalar T>
    void Take(T& value) {
        using Bits = std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint32_t>;
        lastNumber_ = position_;
        value = std::bit_cast<T>(BitsOf<Bits>(Next(sizeof(T)), std::make_index_sequence<sizeof(T)>()));
        if constexpr (std::same_as<T, float>) {
            if (!std::isfinite(value)) Refuse("a number that is not finite");
        }
    }

    template <std::size_t Width>
    void Take(FixedText<Width>& text) {
        Next(Width).copy(text.Bytes().data(), Width);
    }

    template <class T, std::size_t Count>
    void Take(std::array<T, Count>& values) {
        for (T& value : values) Take(value);
    }

    std::string_view bytes_;
    std::string_view fileName_;
    std::size_t offset_;
    std::size_t position_ = 0;
    std::size_t lastNumber_ = 0;
};

/// Appends records to the bytes of a file.
class Writer {
  public:
    explicit Writer(std::string& bytes) : bytes_(bytes) {}

    template <class... Members>
    void operator()(const Members&... members) {
        (Put(members), ...);
    }

  private:
    template <StoredScalar T>
    void Put(T value) {
        using Bits = std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint32_t>;
        auto bits = std::bit_cast<Bits>(value);
        std::array<char, sizeof(T)> bytes{};
        for (char& byte : bytes) {
            byte = static_cast<char>(bits & 0xFF);
            bits = static_cast<Bits>(bits >> 8);
        }
        bytes_.append(bytes.data(), bytes.size());
    }

    template <std::size_t Width>
    void Put(const FixedText<Width>& text) {
        bytes_.append(text.Bytes().data(), Width);
    }

    template <class T, std::size_t Count>
    void Put(const std::array<T, Count>& values) {
        for (const T& value : values) Put(value);
    }

    std::string& bytes_;
};

/// Adds up the bytes that a record takes in a file.
class Counter {
  public:
    template <class... Members>
    constexpr void operator()(const Members&... members) {
        size_ += (std::size_t{0} + ... + Size(members));
    }

    constexpr std::size_t Size() const { return size_; }

  private:
    template <StoredScalar T>
    static constexpr std::size_t Size(const T&) {
        return sizeof(T);
    }

    template <std::size_t Width>
    static constexpr std::size_t Size(const FixedText<Width>&) {
        return Width;
    }

    template <class T, std::size_t Count>
    static constexpr std::size_t Size(const std::array<T, Count>&) {
        return Count * Size(T{});
    }

    std::size_t size_ = 0;
};

template <class Record>
constexpr std::size_t StoredSize() {
    Record record{};
    Counter counter;
    Layout(counter, record);
    return counter.Size();
}

}  // namespace veraqua
