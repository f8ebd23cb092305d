#pragma once

// The payload of a notification: the few kinds of data that travel between the instrument side and
// the window. A dictionary keeps its keys in insertion order, as the device payloads are built.

#include <any>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace velmora {

using Bytes = std::vector<std::uint8_t>;

class Dictionary;

class Value {
public:
    // Any other value type travels as a record; equality does not look inside it.
    struct Record {
        std::any value;
        // Records are opaque: no two compare equal.
        bool operator==(const Record&) const { return false; }
    };

    Value() = default;
    Value(bool b) : v_(b) {}
    Value(int i) : v_(static_cast<std::int64_t>(i)) {}
    Value(std::int64_t i) : v_(i) {}
    Value(const char* s) : v_(std::string(s)) {}
    Value(std::string s) : v_(std::move(s)) {}
    Value(Bytes b) : v_(std::move(b)) {}
    Value(Dictionary d);
    Value(Record r) : v_(std::move(r)) {}

    bool isNone() const { return std::holds_alternative<std::monostate>(v_); }
    const bool* asBool() const { return std::get_if<bool>(&v_); }
    const std::int64_t* asInt() const { return std::get_if<std::int64_t>(&v_); }
    const std::string* asString() const { return std::get_if<std::string>(&v_); }
    const Bytes* asBytes() const { return std::get_if<Bytes>(&v_); }
    const Dictionary* asDictionary() const;
    const std::any* asRecord() const;

    // Shorthand for a dictionary's entry: none when this is not a dictionary or lacks the key.
    const Value* operator[](const std::string& key) const;

    bool operator==(const Value& other) const;

    // A compact, JSON-like rendering for logs and the command line.
    std::string describe() const;

private:
    // Dictionaries are shared immutably and copied on write, so passing payloads around is cheap.
    std::variant<std::monostate, bool, std::int64_t, std::string, Bytes,
                 std::shared_ptr<const Dictionary>, Record>
        v_;
};

class Dictionary {
public:
    using Entry = std::pair<std::string, Value>;

    Dictionary() = default;
    Dictionary(std::initializer_list<Entry> entries);

    // Replaces the value of an existing key in place, or appends the key at the end.
    void set(const std::string& key, Value value);
    const Value* find(const std::string& key) const;
    bool contains(const std::string& key) const { return find(key) != nullptr; }
    void clear() { entries_.clear(); }
    bool empty() const { return entries_.empty(); }
    std::size_t size() const { return entries_.size(); }
    const std::vector<Entry>& entries() const { return entries_; }

    bool operator==(const Dictionary& other) const;

private:
    std::vector<Entry> entries_;
};

} // namespace velmora
