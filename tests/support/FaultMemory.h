#pragma once

class FaultPlan;

// From now on SQLite's memory is handed out as `plan` says; null: always. Nothing of SQLite may be open at
// the first call.
void setFaultMemory(FaultPlan* plan);
