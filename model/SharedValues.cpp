#include "model/SharedValues.h"

SharedValues& shared()
{
    static SharedValues values;
    return values;
}
