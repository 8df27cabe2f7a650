#include "app/program.h"

namespace lignara {

const char* ProgramVersion() { return LIGNARA_VERSION; }

}  // namespace lignara
