// Reading a JSON file that people write: every complaint says where in the file and what is expected there.
#pragma once

#include "host/TextFile.h"

#include <nlohmann/json_fwd.hpp>

#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// Throws CFileError, with the line of the mistake.
nlohmann::json ParseJson(const std::string& text);

/// A value of a document together with its place in it. What is not as expected throws CFileError.
class CJsonNode
{
public:
    /// The whole of a document, which complaints call by that name: "the session".
    CJsonNode(const nlohmann::json& value, const char* document) : m_value(value), m_document(document) {}

    const std::string& Where() const { return m_where; }
    [[noreturn]] void Refuse(const std::string& what) const;

    bool IsText() const;
    bool Has(const char* key) const;

    /// Members of an object. A key that is not known is a mistake of the file, not something to pass over.
    void ExpectKeys(std::initializer_list<const char*> known) const;
    CJsonNode operator[](const char* key) const;
    std::vector<std::pair<std::string, CJsonNode>> Members() const;
    std::vector<CJsonNode> Elements() const;

    std::string Text() const;
    bool Flag() const;
    long long Number(long long low, long long high) const;
    int Int(long long low, long long high) const { return static_cast<int>(Number(low, high)); }

    /// What the text stands for.
    template <typename T>
    T Choose(const std::map<std::string, T>& choices) const
    {
        const std::string name = Text();
        const auto choice = choices.find(name);
        if (choice != choices.end())
            return choice->second;
        std::string names;
        for (const auto& entry : choices)
            names += (names.empty() ? "" : ", ") + entry.first;
        Refuse("\"" + name + "\" is none of " + names);
    }

private:
    CJsonNode Child(const nlohmann::json& value, const std::string& where) const;
    CJsonNode Member(const nlohmann::json& value, const std::string& key) const;

    const nlohmann::json& m_value;
    const char* m_document;
    std::string m_where; // empty for the whole
};
