#ifndef IDLETOAST_H
#define IDLETOAST_H

#include "toast.h"

/// A toast of the home screen: the same notice under its own name.
class IdleToast : public Toast
{
    Q_OBJECT

public:
    using Toast::Toast;
};

#endif
