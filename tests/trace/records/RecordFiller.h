// Fills a record through its struct, and notes under each member's name what it was given.
//
//   CRecordFiller filler;
//   auto &command = filler.New<SNrDlFreqCmdV7>();
//   FILL("", command, ulFrequency);            // the next number
//   FILL_WITH("", command, forced, 1);
//   filler.Numbers().at("ulFrequency");
//
// Numbers that follow one another differ in every byte width; arrays are filled element by element.
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#define FILL(prefix, record, member) filler.Set((record).member, std::string(prefix) + #member)
#define FILL_WITH(prefix, record, member, value)                                                   \
    filler.Give((record).member, std::string(prefix) + #member, value)

class CRecordFiller
{
public:
    // The record that is filled, all bytes 0. One a filler.
    template <class Record>
    Record &New()
    {
        static_assert(std::is_trivially_copyable_v<Record>);
        m_bytes.assign(sizeof(Record), 0);
        return *new (m_bytes.data()) Record();
    }

    template <class Member>
    void Set(Member &member, const std::string &name)
    {
        if constexpr (std::is_array_v<Member> &&
                      std::is_same_v<std::remove_extent_t<Member>, char>) {
            SetText(member, sizeof member, name);
        } else if constexpr (std::is_array_v<Member>) {
            std::size_t i = 0;
            for (auto &element : member)
                Set(element, name + "[" + std::to_string(i++) + "]");
        } else {
            Give(member, name, Next<Member>());
        }
    }

    template <class Member>
    void Give(Member &member, const std::string &name, std::type_identity_t<Member> value)
    {
        member = value;
        m_numbers[name] = value;
    }

    const std::vector<uint8_t> &Bytes() const { return m_bytes; }
    const std::map<std::string, int64_t> &Numbers() const { return m_numbers; }
    const std::map<std::string, std::string> &Texts() const { return m_texts; }

private:
    template <class Number>
    Number Next()
    {
        m_last += 0x9e3779b1;  // odd: all numbers of a width come before one comes again
        if (static_cast<Number>(m_last) == 0)
            m_last += 0x9e3779b1;
        return static_cast<Number>(m_last);
    }

    // Every second text fills its room, without a 0.
    void SetText(char *text, std::size_t room, const std::string &name)
    {
        const std::string part = "T" + std::to_string(m_texts.size()) + ".";
        std::string whole;
        while (whole.size() < room)
            whole += part;
        whole.resize(m_texts.size() % 2 == 0 ? room : room / 2);
        std::memcpy(text, whole.data(), whole.size());
        m_texts[name] = whole;
    }

    std::vector<uint8_t> m_bytes;
    uint32_t m_last = 0;
    std::map<std::string, int64_t> m_numbers;
    std::map<std::string, std::string> m_texts;
};
