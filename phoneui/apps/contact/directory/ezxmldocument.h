#ifndef EZXMLDOCUMENT_H
#define EZXMLDOCUMENT_H

#include "ezxml.h"
#include "ezxmldoctype.h"
#include "ezxmlmemory.h"

/// What belongs to a tree beside its root record and its buffer.
class EzxmlDocument
{
public:
    /// A root record with all fields set, as of an empty document.
    static ezxml_root *newRoot();
    /// The fields of an element without attributes, text and kin.
    static void clear(ezxml *element)
    {
        *element = ezxml();
        element->attr = const_cast<char **>(EZXML_NIL);
        element->txt = noText;
    }

    static char noText[1];

    EzxmlMemory memory;
    EzxmlDoctype doctype;
};

/// The UTF-8 form of a text in UTF-16 with its byte-order mark, on the heap; `length` is changed to its length.
/// What is no character becomes U+FFFD.
char *ezxml_str2utf8(const char *text, std::size_t *length);

#endif
