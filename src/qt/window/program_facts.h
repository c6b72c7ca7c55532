// What this program, its toolkit and this system are called.
#pragma once

#include "line/program_facts.h"

namespace corvane {

ProgramFacts programFacts();

}  // namespace corvane
