#ifndef LOG_H
#define LOG_H

/// The phone's log on the standard error stream: a line a message, with the time and how grave it is.
namespace Log {

void install();

}

#endif
