#ifndef EZXML_H
#define EZXML_H

#include <cstddef>
#include <cstdio>

/// An XML reader in plain functions. It edits the document's buffer in place and links a tree of element records
/// whose names, attribute values and texts point into it; all of them live until ezxml_free() on the root, so a
/// caller copies what it wants to keep. Time is linear in the size of the document, whatever the document is, and
/// nesting costs no stack.
///
/// A fault stops the reading: the root then holds everything before the fault, and its err says what was wrong.

class EzxmlDocument;

extern "C" {

struct ezxml
{
    char *name;
    char **attr; ///< pairs of name and value up to a null pointer, then a byte string with a flag per attribute
    char *txt; ///< all runs of text joined; never null
    std::size_t off; ///< where in the parent's txt this element opened
    ezxml *next; ///< the next element of the same name under the same parent
    ezxml *sibling; ///< the first element of the next name under the same parent
    ezxml *ordered; ///< the next element under the same parent
    ezxml *child;
    ezxml *parent; ///< null at the root
    short flags; ///< EZXML_TXTM for a txt outside of the document's buffer
    short declared; ///< 1 when the document type declares attributes for this name
};

/// In flags: txt lies outside of the document's buffer.
enum { EZXML_TXTM = 0x40 };

struct ezxml_root
{
    ezxml xml; ///< the root element; what ezxml_parse_* return points here
    ezxml *cur; ///< the element being parsed
    char *m; ///< the buffer as it was read
    std::size_t len; ///< -1: m is freed with the tree
    char *u; ///< the document in UTF-8 when it came in UTF-16, else null
    char *s; ///< start of the text in use
    char *e; ///< its end
    char **ent; ///< pairs of entity name, with its semicolon, and replacement, up to a null pointer
    char ***attr; ///< per element name: that name, then triples of attribute name, default or null, type
    char ***pi; ///< per target: that target, then the instructions, up to a null pointer
    short standalone;
    char err[128]; ///< empty when there was no fault
    EzxmlDocument *document; ///< what is not in the buffer
};

/// What stands for every list without entries.
extern char *const EZXML_NIL[];

/// Null when the file cannot be opened or read.
ezxml *ezxml_parse_file(const char *path);
ezxml *ezxml_parse_fd(int fd);
ezxml *ezxml_parse_fp(std::FILE *file);
/// The buffer is edited and must outlive the tree.
ezxml *ezxml_parse_str(char *text, std::size_t length);

/// The first child of that name; any child for a null name. Null for a null element.
ezxml *ezxml_child(ezxml *element, const char *name);
/// The element of the same name that follows `index` places later.
ezxml *ezxml_idx(ezxml *element, int index);
/// The attribute's value, else the default that the document type declares, else null. Null for a null element.
const char *ezxml_attr(ezxml *element, const char *name);
/// The processing instructions for this target, up to a null pointer.
const char **ezxml_pi(ezxml *element, const char *target);
/// The fault that ended the reading, or the empty text.
const char *ezxml_error(ezxml *element);

/// Frees the element and all below it; an element that is not the root leaves its parent, and its memory goes with
/// the tree.
void ezxml_free(ezxml *element);
}

#endif
