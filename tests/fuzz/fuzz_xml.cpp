// Any bytes give a tree whose lists agree with each other.

#include "ezxml.h"
#include "fuzztarget.h"

#include <cstring>
#include <vector>

namespace {

/// The next element in document order, without recursion.
ezxml *following(ezxml *element)
{
    if (element->child)
        return element->child;
    while (element && !element->ordered)
        element = element->parent;
    return element ? element->ordered : nullptr;
}

void checkChildren(ezxml *parent)
{
    std::size_t inOrder = 0;
    std::size_t offset = 0;
    for (const ezxml *child = parent->child; child; child = child->ordered) {
        ++inOrder;
        require(child->parent == parent && child->off >= offset);
        offset = child->off;
    }
    require(offset <= std::strlen(parent->txt));
    std::size_t byName = 0;
    for (ezxml *first = parent->child; first; first = first->sibling) {
        for (const ezxml *child = first; child; child = child->next) {
            ++byName;
            require(std::strcmp(child->name, first->name) == 0 && child->sibling == first->sibling);
        }
    }
    require(byName == inOrder);
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::vector<char> text(data, data + size);
    ezxml *root = ezxml_parse_str(text.data(), text.size());
    require(std::strlen(ezxml_error(root)) < sizeof(ezxml_root::err));
    require(root->name || *ezxml_error(root));
    for (ezxml *element = root; element && element->name; element = following(element)) {
        checkChildren(element);
        std::size_t count = 0;
        for (; element->attr[2 * count]; ++count)
            require(ezxml_attr(element, element->attr[2 * count]));
        require(std::strlen(element->attr[2 * count + 1]) == count);
        ezxml_attr(element, "a");
    }
    if (root->child && size % 2)
        ezxml_free(root->child);
    ezxml_free(root);
    return 0;
}
