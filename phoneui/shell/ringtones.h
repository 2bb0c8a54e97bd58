#ifndef RINGTONES_H
#define RINGTONES_H

class PhoneHome;

/// Puts the phone's own ring tones into its home, if none lie there. Tones that the owner removed stay away as long
/// as one is left.
void installRingTones(const PhoneHome &home);

#endif
