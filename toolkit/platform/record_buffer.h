#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/platform/win_types.h"

// Records for an enumeration of the spooler: they come to stand at the start of the caller's buffer, their
// texts behind them.
//
//     PX_Record_Buffer<PORT_INFO_2W> ports;
//     ports.add({}).fPortType = 3;
//     ports.set_text(&PORT_INFO_2W::pPortName, L"COM1:");
//     return ports.give(buffer, size, needed, count);
template <class Record>
class PX_Record_Buffer {
public:
    // The reference holds until the next one is added.
    Record& add(const Record& record) { return m_records.emplace_back(record); }

    // Of the record that was added last. A field that gets no text keeps what the record holds.
    void set_text(wchar_t* Record::*field, std::wstring text) {
        m_texts.push_back({m_records.size() - 1, field, std::move(text)});
    }

    // `needed` gets the size of all in any case. What does not fit is a failure that writes nothing into
    // the buffer and a count of 0. The buffer is aligned as memory from `new` is. Where all needs less than
    // `at_least` bytes, room is left before the texts.
    BOOL give(BYTE* buffer, DWORD size, DWORD* needed, DWORD* count, DWORD at_least = 0) const {
        if (!needed || !count)
            return 0;
        const std::size_t records_size = m_records.size() * sizeof(Record);
        std::size_t texts_size = 0;
        for (const Text& text : m_texts)
            texts_size += size_of(text);
        const std::size_t padded = (at_least + alignof(Record) - 1) / alignof(Record) * alignof(Record);
        const std::size_t whole = std::max(records_size + texts_size, padded);
        *needed = static_cast<DWORD>(whole);
        *count = 0;
        if (whole > size || (whole > 0 && !buffer))
            return 0;

        std::vector<Record> records = m_records;
        BYTE* place = buffer + (whole - texts_size);
        for (const Text& text : m_texts) {
            std::memcpy(place, text.characters.c_str(), size_of(text));
            records[text.record].*text.field = reinterpret_cast<wchar_t*>(place);
            place += size_of(text);
        }
        if (records_size > 0)
            std::memcpy(buffer, records.data(), records_size);
        *count = static_cast<DWORD>(records.size());
        return 1;
    }

private:
    struct Text {
        std::size_t record;
        wchar_t* Record::*field;
        std::wstring characters;
    };

    static std::size_t size_of(const Text& text) { return (text.characters.size() + 1) * sizeof(wchar_t); }

    std::vector<Record> m_records;
    std::vector<Text> m_texts;
};
