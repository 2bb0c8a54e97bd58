#include "ezxmldoctype.h"

#include "ezxmlinstructions.h"
#include "ezxmlmemory.h"
#include "ezxmltext.h"

using namespace EzxmlText;

bool EzxmlDoctype::read(char **at, const char *end, EzxmlEntities *entities, EzxmlInstructions *instructions)
{
    m_entities = entities;
    m_instructions = instructions;
    m_inputs = {{*at, end}};
    while (readNext()) { }
    *at += m_inputs.front().at - *at;
    if (m_fault.empty()) {
        const std::string circular = m_entities->circular();
        if (!circular.empty())
            fail("circular entity declaration &" + circular);
    }
    return m_fault.empty();
}

EzxmlEntities::Kind EzxmlDoctype::kind(std::string_view element, std::string_view name) const
{
    const Attribute *declared = attribute(element, name);
    return declared ? declared->kind : EzxmlEntities::AttributeText;
}

const char *EzxmlDoctype::defaultValue(std::string_view element, std::string_view name) const
{
    const Attribute *declared = attribute(element, name);
    return declared && declared->hasDefault ? declared->defaultValue.c_str() : nullptr;
}

const EzxmlDoctype::Attribute *EzxmlDoctype::attribute(std::string_view element, std::string_view name) const
{
    const auto attributes = m_elements.find(element);
    if (attributes == m_elements.end())
        return nullptr;
    const auto found = attributes->second.find(name);
    return found == attributes->second.end() ? nullptr : &found->second;
}

char ***EzxmlDoctype::table(EzxmlMemory *memory) const
{
    const auto copy = [memory](const std::string &text) { return memory->text(text.data(), text.size()); };
    char ***table = memory->array<char **>(m_elements.size() + 1);
    char ***entry = table;
    for (const auto &[element, attributes] : m_elements) {
        char **list = memory->array<char *>(attributes.size() * 3 + 2);
        *entry++ = list;
        *list++ = copy(element);
        for (const auto &[name, attribute] : attributes) {
            *list++ = copy(name);
            *list++ = attribute.hasDefault ? copy(attribute.defaultValue) : nullptr;
            *list++ = copy(std::string(1, attribute.kind));
        }
        *list = nullptr;
    }
    *entry = nullptr;
    return table;
}

bool EzxmlDoctype::readNext()
{
    skipSpace();
    const bool inDocument = m_inputs.size() == 1;
    if (atEnd()) {
        if (inDocument)
            return fail("unclosed <!DOCTYPE");
        m_inputs.pop_back();
        return true;
    }
    if (inDocument && take("]"))
        return false;
    if (take("%"))
        return readReference();
    if (take("<!--"))
        return skipComment();
    if (take("<?"))
        return readInstruction();
    if (take("<!ENTITY"))
        return readEntity();
    if (take("<!ATTLIST"))
        return readAttributes();
    if (take("<!ELEMENT") || take("<!NOTATION"))
        return skipDeclaration();
    return fail(*input().at == '<' ? "unexpected <" : "unclosed <!DOCTYPE");
}

bool EzxmlDoctype::readReference()
{
    const std::string name(takeName());
    if (!take(";"))
        return fail("unclosed <!DOCTYPE");
    const std::string *text = m_entities->parameter(name);
    if (!text) {
        // What it would have declared is unknown, so that later declarations may not be the first of their names.
        m_incomplete = !m_instructions->isStandalone();
        return true;
    }
    if (m_inputs.size() > m_entities->parameterCount())
        return fail("circular entity declaration &" + name);
    m_entities->spend(text->size());
    if (m_entities->overflown())
        return fail("entities expand too far");
    m_inputs.push_back({text->data(), text->data() + text->size()});
    return true;
}

bool EzxmlDoctype::readInstruction()
{
    const std::string_view rest(input().at, static_cast<std::size_t>(input().end - input().at));
    const std::size_t length = rest.find("?>");
    if (length == std::string_view::npos)
        return fail("unclosed <?");
    m_instructions->add(rest.substr(0, length));
    input().at += length + 2;
    return true;
}

bool EzxmlDoctype::readEntity()
{
    skipSpace();
    const bool parameter = take("%");
    skipSpace();
    const std::string name(takeName());
    skipSpace();
    std::string value;
    // Without a value in quotes it lies outside of the document, and references to it stay as they are.
    if (!name.empty() && takeQuoted(&value) && !m_incomplete) {
        decode(&value, EzxmlEntities::EntityValue);
        if (parameter)
            m_entities->declareParameter(name, value);
        else
            m_entities->declare(name, value);
    }
    return skipDeclaration();
}

bool EzxmlDoctype::readAttributes()
{
    skipSpace();
    const std::string element(takeName());
    Attributes ignored;
    Attributes *attributes = m_incomplete || element.empty() ? &ignored : &m_elements[element];
    while (m_fault.empty()) {
        skipSpace();
        if (take(">"))
            return !element.empty() || fail("malformed <!ATTLIST");
        if (element.empty() || !readAttribute(attributes))
            fail(atEnd() ? "unclosed <!ATTLIST" : "malformed <!ATTLIST");
    }
    return false;
}

bool EzxmlDoctype::readAttribute(Attributes *attributes)
{
    const std::string name(takeName());
    Attribute attribute{EzxmlEntities::AttributeText, false, {}};
    if (name.empty() || !takeType(&attribute.kind))
        return false;
    skipSpace();
    if (!take("#REQUIRED") && !take("#IMPLIED")) {
        take("#FIXED");
        skipSpace();
        if (!takeQuoted(&attribute.defaultValue))
            return false;
        attribute.hasDefault = true;
        decode(&attribute.defaultValue, attribute.kind);
    }
    attributes->emplace(name, attribute);
    return true;
}

bool EzxmlDoctype::skipComment()
{
    const std::string_view rest(input().at, static_cast<std::size_t>(input().end - input().at));
    const std::size_t length = rest.find("-->");
    if (length == std::string_view::npos)
        return fail("unclosed <!--");
    input().at += length + 3;
    return true;
}

bool EzxmlDoctype::skipDeclaration()
{
    std::string ignored;
    while (!atEnd()) {
        if (take(">"))
            return true;
        if (!takeQuoted(&ignored))
            ++input().at;
    }
    return fail("unclosed <!DOCTYPE");
}

bool EzxmlDoctype::fail(const std::string &fault)
{
    if (m_fault.empty())
        m_fault = fault;
    return false;
}

void EzxmlDoctype::skipSpace()
{
    input().at = skip(input().at, input().end, Space);
}

bool EzxmlDoctype::take(std::string_view word)
{
    const std::size_t left = static_cast<std::size_t>(input().end - input().at);
    if (left < word.size() || std::string_view(input().at, word.size()) != word)
        return false;
    input().at += word.size();
    return true;
}

std::string_view EzxmlDoctype::takeName()
{
    const char *name = input().at;
    if (!atEnd() && is(*name, NameStart))
        input().at = skip(name, input().end, NameChar);
    return std::string_view(name, static_cast<std::size_t>(input().at - name));
}

bool EzxmlDoctype::takeType(EzxmlEntities::Kind *kind)
{
    skipSpace();
    const std::string_view type = takeName();
    *kind = type == "CDATA" ? EzxmlEntities::AttributeText : EzxmlEntities::AttributeToken;
    skipSpace();
    if (!type.empty() && type != "NOTATION")
        return true;
    // One of several words.
    const char *bracket = take("(") ? find(input().at, input().end, ')') : nullptr;
    if (!bracket)
        return false;
    input().at = bracket + 1;
    return true;
}

bool EzxmlDoctype::takeQuoted(std::string *value)
{
    if (atEnd() || (*input().at != '"' && *input().at != '\''))
        return false;
    const char *text = input().at + 1;
    const char *quote = find(text, input().end, *input().at);
    if (!quote)
        return false;
    value->assign(text, quote);
    input().at = quote + 1;
    return true;
}

void EzxmlDoctype::decode(std::string *text, EzxmlEntities::Kind kind)
{
    *text = m_entities->decoded(*text, kind);
    if (m_entities->overflown())
        fail("entities expand too far");
}
