#ifndef EZXMLDOCTYPE_H
#define EZXMLDOCTYPE_H

#include "ezxmlentities.h"

class EzxmlInstructions;

/// The document type of one document: declares its entities, and knows the types and default values of attributes.
/// Only what stands in the document itself is read; external subsets and entities are not fetched.
class EzxmlDoctype
{
public:
    /// What stands between the brackets of the document type; `*at` is moved from behind the first to behind the
    /// last one. False after a fault: then `*at` is where it was noticed.
    bool read(char **at, const char *end, EzxmlEntities *entities, EzxmlInstructions *instructions);
    const std::string &fault() const { return m_fault; }

    /// No attribute is declared.
    bool isEmpty() const { return m_elements.empty(); }
    bool declares(std::string_view element) const { return m_elements.find(element) != m_elements.end(); }
    EzxmlEntities::Kind kind(std::string_view element, std::string_view attribute) const;
    /// Null when there is none.
    const char *defaultValue(std::string_view element, std::string_view attribute) const;

    /// Per element its name, then triples of attribute name, default or null, and the kind of decoding as a text.
    char ***table(EzxmlMemory *memory) const;

private:
    struct Attribute
    {
        EzxmlEntities::Kind kind;
        bool hasDefault;
        std::string defaultValue;
    };
    using Attributes = std::map<std::string, Attribute, std::less<>>;
    struct Input
    {
        const char *at;
        const char *end;
    };

    const Attribute *attribute(std::string_view element, std::string_view name) const;

    // Each of these is false when nothing more is to be read: at the closing bracket or after a fault.
    bool readNext();
    bool readReference();
    bool readInstruction();
    bool readEntity();
    bool readAttributes();
    bool readAttribute(Attributes *attributes);
    bool skipComment();
    bool skipDeclaration();

    Input &input() { return m_inputs.back(); }
    bool atEnd() const { return m_inputs.back().at == m_inputs.back().end; }
    bool fail(const std::string &fault);
    void skipSpace();
    bool take(std::string_view word);
    std::string_view takeName();
    bool takeType(EzxmlEntities::Kind *kind);
    /// False when no closed quotation starts here.
    bool takeQuoted(std::string *value);
    void decode(std::string *text, EzxmlEntities::Kind kind);

    std::map<std::string, Attributes, std::less<>> m_elements;

    // While the declarations are read:
    EzxmlEntities *m_entities = nullptr;
    EzxmlInstructions *m_instructions = nullptr;
    std::vector<Input> m_inputs; ///< the document, and on top of it the parameter entities under way
    bool m_incomplete = false; ///< declarations that were not seen may have come before the next one
    std::string m_fault;
};

#endif
