#ifndef BUDDYIDSTATUSTYPE_H
#define BUDDYIDSTATUSTYPE_H

/// The presence of one buddy; both values are -1 while nothing is known.
struct buddyIdStatusType
{
    int status = -1;
    int device = -1;
};

#endif
