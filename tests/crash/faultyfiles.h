#ifndef FAULTYFILES_H
#define FAULTYFILES_H

/// Lets one write, sync or rename below a folder fail, counted from the moment of arming. The functions of the C
/// library are replaced for the whole program that this is linked into.
namespace FaultyFiles {

enum class Fault {
    NoSpace, ///< half the bytes are written, then ENOSPC
    NoSpaceOnce,
    InputOutput, ///< EIO
    InputOutputOnce,
    Killed, ///< SIGKILL after half the bytes
};

/// Operation number `at`, from 1, fails, and with a lasting fault all that follow it.
void arm(const char *folder, int at, Fault fault);
/// All is well again. Returns how many operations were asked for since.
int disarm();

}

#endif
