#ifndef EZXMLINSTRUCTIONS_H
#define EZXMLINSTRUCTIONS_H

#include <map>
#include <string>
#include <string_view>
#include <vector>

class EzxmlMemory;

/// The processing instructions of one document.
class EzxmlInstructions
{
public:
    /// Takes what stands between `<?` and `?>`, which may be the XML declaration.
    void add(std::string_view instruction);
    /// The XML declaration says that nothing outside of the document bears on it.
    bool isStandalone() const { return m_standalone; }

    /// Per target that target, then its instructions up to a null pointer.
    bool isEmpty() const { return m_targets.empty(); }
    char ***table(EzxmlMemory *memory) const;

private:
    std::map<std::string, std::vector<std::string>, std::less<>> m_targets;
    bool m_standalone = false;
};

#endif
