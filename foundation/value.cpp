#include "foundation/value.h"

#include <cstdio>

namespace velmora {

Dictionary::Dictionary(std::initializer_list<Entry> entries) {
    for (const auto& [key, value] : entries) {
        set(key, value);
    }
}

void Dictionary::set(const std::string& key, Value value) {
    for (auto& entry : entries_) {
        if (entry.first == key) {
            entry.second = std::move(value);
            return;
        }
    }
    entries_.emplace_back(key, std::move(value));
}

const Value* Dictionary::find(const std::string& key) const {
    for (const auto& entry : entries_) {
        if (entry.first == key) {
            return &entry.second;
        }
    }
    return nullptr;
}

bool Dictionary::operator==(const Dictionary& other) const {
    return entries_ == other.entries_;
}

Value::Value(Dictionary d) : v_(std::make_shared<const Dictionary>(std::move(d))) {}

const Dictionary* Value::asDictionary() const {
    const auto* p = std::get_if<std::shared_ptr<const Dictionary>>(&v_);
    return p ? p->get() : nullptr;
}

const std::any* Value::asRecord() const {
    const auto* r = std::get_if<Record>(&v_);
    return r ? &r->value : nullptr;
}

const Value* Value::operator[](const std::string& key) const {
    const Dictionary* d = asDictionary();
    return d ? d->find(key) : nullptr;
}

bool Value::operator==(const Value& other) const {
    if (v_.index() != other.v_.index()) {
        return false;
    }
    if (const auto* d = asDictionary()) {
        return *d == *other.asDictionary();
    }
    return v_ == other.v_;
}

namespace {

std::string quoted(const std::string& s) {
    std::string out = "\"";
    for (const char c : s) {
        const auto u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (u < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", u);
            out += buf;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

} // namespace

std::string Value::describe() const {
    if (isNone()) {
        return "null";
    }
    if (const auto* b = asBool()) {
        return *b ? "true" : "false";
    }
    if (const auto* i = asInt()) {
        return std::to_string(*i);
    }
    if (const auto* s = asString()) {
        return quoted(*s);
    }
    if (const auto* bytes = asBytes()) {
        std::string out = "[";
        for (std::size_t k = 0; k < bytes->size(); ++k) {
            out += (k ? "," : "") + std::to_string((*bytes)[k]);
        }
        return out + "]";
    }
    if (const auto* d = asDictionary()) {
        std::string out = "{";
        bool first = true;
        for (const auto& [key, value] : d->entries()) {
            out += (first ? "" : ",") + quoted(key) + ":" + value.describe();
            first = false;
        }
        return out + "}";
    }
    return "\"<record>\"";
}

} // namespace velmora
