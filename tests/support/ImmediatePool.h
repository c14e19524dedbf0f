#pragma once

#include "platform/foundation/Pool.h"

// Runs every task before start() returns.
class ImmediatePool final : public Pool
{
public:
    void start(Task task) override { task(); }
};
