#pragma once

/// Names a type without its header: it compiles only behind one that includes <string>.
std::string LeansOnItsIncluder();
