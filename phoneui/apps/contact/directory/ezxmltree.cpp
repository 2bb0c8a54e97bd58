#include "ezxmldocument.h"
#include "ezxmlnames.h"

#include <cstdlib>
#include <cstring>

namespace {

ezxml_root *rootOf(ezxml *element)
{
    while (element->parent)
        element = element->parent;
    return reinterpret_cast<ezxml_root *>(element);
}

/// Names are short: a call of the C library takes longer than to compare them.
bool same(const char *a, const char *b)
{
    for (; *a == *b; ++a, ++b) {
        if (*a == '\0')
            return true;
    }
    return false;
}

/// Takes an element out of its parent and links those that stay anew.
void cut(const ezxml *element)
{
    ezxml **link = &element->parent->child;
    while (*link != element)
        link = &(*link)->ordered;
    *link = element->ordered;
    EzxmlNames names;
    EzxmlNames::Scope scope = names.open();
    for (ezxml *other = element->parent->child; other; other = other->ordered) {
        const std::size_t length = std::strlen(other->name);
        other->next = other->sibling = nullptr;
        names.append(&scope, EzxmlName(other->name, length, other->name + length), other);
    }
}

}

// Behind the null pointer that ends a list of attributes stand its flags.
char *const EZXML_NIL[] = {nullptr, EzxmlDocument::noText};

char EzxmlDocument::noText[] = "";

ezxml_root *EzxmlDocument::newRoot()
{
    ezxml_root *root = new ezxml_root();
    clear(&root->xml);
    root->attr = root->pi = reinterpret_cast<char ***>(const_cast<char **>(EZXML_NIL));
    root->document = new EzxmlDocument;
    return root;
}

ezxml *ezxml_child(ezxml *element, const char *name)
{
    ezxml *child = element ? element->child : nullptr;
    if (name) {
        while (child && !same(child->name, name))
            child = child->sibling;
    }
    return child;
}

ezxml *ezxml_idx(ezxml *element, int index)
{
    for (; element && index > 0; --index)
        element = element->next;
    return element;
}

const char *ezxml_attr(ezxml *element, const char *name)
{
    if (!element)
        return nullptr;
    for (char **pair = element->attr; *pair; pair += 2) {
        if (same(pair[0], name))
            return pair[1];
    }
    return element->declared ? rootOf(element)->document->doctype.defaultValue(element->name, name) : nullptr;
}

const char **ezxml_pi(ezxml *element, const char *target)
{
    char **instructions = const_cast<char **>(EZXML_NIL);
    if (element) {
        for (char ***entry = rootOf(element)->pi; *entry; ++entry) {
            if (same((*entry)[0], target))
                instructions = *entry + 1;
        }
    }
    return const_cast<const char **>(instructions);
}

const char *ezxml_error(ezxml *element)
{
    return element ? rootOf(element)->err : "";
}

void ezxml_free(ezxml *element)
{
    if (!element)
        return;
    if (element->parent) {
        cut(element);
        return;
    }
    ezxml_root *root = rootOf(element);
    if (root->len == static_cast<std::size_t>(-1))
        std::free(root->m);
    std::free(root->u);
    delete root->document;
    delete root;
}
