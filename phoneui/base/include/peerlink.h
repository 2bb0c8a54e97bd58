#ifndef PEERLINK_H
#define PEERLINK_H

#include "message.h"

class PhoneHome;

/// Sends one application command to a running phone over the peers' socket of its home; the address's first half
/// is the application ("contact/WPSM"). On the socket a message follows its length, 4 bytes big-endian.
/// False when no phone is running there. Waits half a second at most.
bool sendToShell(const PhoneHome &home, const Message &message);

#endif
