#ifndef DIRECTORYTEXTS_H
#define DIRECTORYTEXTS_H

/// The hardware address of a network interface as 12 upper-case hexadecimal digits, or the empty text. The first
/// interface that has one wins for the life of the process. The text is not the caller's to free.
char *get_mac_addr2(char *interfaceName);

/// A copy of the text without the spaces and tabs around it; the caller frees it with free().
char *strduptrim(char *text);

#endif
