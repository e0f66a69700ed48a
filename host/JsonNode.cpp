#include "host/JsonNode.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>

using nlohmann::json;

json ParseJson(const std::string& text)
{
    try
    {
        return json::parse(text);
    }
    catch (const json::parse_error& error)
    {
        const size_t end = std::min(text.size(), error.byte);
        const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n');
        throw CFileError("no JSON: mistake in line " + std::to_string(line));
    }
    catch (const json::out_of_range&)
    {
        throw CFileError("no JSON: a number is too large");
    }
}

void CJsonNode::Refuse(const std::string& what) const
{
    throw CFileError((m_where.empty() ? m_document : m_where) + ": " + what);
}

CJsonNode CJsonNode::Child(const json& value, const std::string& where) const
{
    CJsonNode child(value, m_document);
    child.m_where = where;
    return child;
}

CJsonNode CJsonNode::Member(const json& value, const std::string& key) const
{
    return Child(value, m_where.empty() ? key : m_where + "." + key);
}

bool CJsonNode::IsText() const { return m_value.is_string(); }

bool CJsonNode::Has(const char* key) const { return m_value.contains(key); }

void CJsonNode::ExpectKeys(std::initializer_list<const char*> known) const
{
    for (const auto& [key, value] : Members())
    {
        if (std::find(known.begin(), known.end(), key) == known.end())
            Refuse("unknown key \"" + key + "\"");
    }
}

CJsonNode CJsonNode::operator[](const char* key) const
{
    if (!Has(key))
        Refuse(std::string("\"") + key + "\" is missing");
    return Member(m_value[key], key);
}

std::vector<std::pair<std::string, CJsonNode>> CJsonNode::Members() const
{
    if (!m_value.is_object())
        Refuse("an object {...} is expected");
    std::vector<std::pair<std::string, CJsonNode>> members;
    for (const auto& [key, value] : m_value.items())
        members.emplace_back(key, Member(value, key));
    return members;
}

std::vector<CJsonNode> CJsonNode::Elements() const
{
    if (!m_value.is_array())
        Refuse("a list [...] is expected");
    std::vector<CJsonNode> elements;
    for (const json& value : m_value)
        elements.push_back(Child(value, m_where + "[" + std::to_string(elements.size()) + "]"));
    return elements;
}

std::string CJsonNode::Text() const
{
    if (!m_value.is_string())
        Refuse("a text is expected");
    return m_value.get<std::string>();
}

bool CJsonNode::Flag() const
{
    if (!m_value.is_boolean())
        Refuse("true or false is expected");
    return m_value.get<bool>();
}

long long CJsonNode::Number(long long low, long long high) const
{
    const std::string expected =
        "a whole number from " + std::to_string(low) + " to " + std::to_string(high) + " is expected";
    if (!m_value.is_number_integer() || (m_value.is_number_unsigned() && m_value.get<unsigned long long>() > INT64_MAX))
        Refuse(expected);
    const auto number = m_value.get<long long>();
    if (number < low || number > high)
        Refuse(expected);
    return number;
}
