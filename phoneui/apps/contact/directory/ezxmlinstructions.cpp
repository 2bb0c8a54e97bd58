#include "ezxmlinstructions.h"

#include "ezxmlmemory.h"
#include "ezxmltext.h"

using namespace EzxmlText;

namespace {

bool saysStandalone(std::string_view declaration)
{
    const std::size_t name = declaration.find("standalone");
    if (name == std::string_view::npos)
        return false;
    const std::size_t quote = declaration.find_first_of("\"'", name);
    return quote != std::string_view::npos && declaration.substr(quote + 1, 3) == "yes";
}

}

void EzxmlInstructions::add(std::string_view instruction)
{
    const char *end = instruction.data() + instruction.size();
    const char *target = instruction.data();
    const char *behind = target;
    while (behind < end && !is(*behind, Space))
        ++behind;
    const char *content = skip(behind, end, Space);
    const std::string_view name(target, static_cast<std::size_t>(behind - target));
    const std::string_view text(content, static_cast<std::size_t>(end - content));
    if (name == "xml")
        m_standalone = saysStandalone(text);
    else
        m_targets[std::string(name)].emplace_back(text);
}

char ***EzxmlInstructions::table(EzxmlMemory *memory) const
{
    char ***table = memory->array<char **>(m_targets.size() + 1);
    char ***entry = table;
    for (const auto &[target, instructions] : m_targets) {
        char **list = memory->array<char *>(instructions.size() + 2);
        *entry++ = list;
        *list++ = memory->text(target.data(), target.size());
        for (const std::string &instruction : instructions)
            *list++ = memory->text(instruction.data(), instruction.size());
        *list = nullptr;
    }
    *entry = nullptr;
    return table;
}
