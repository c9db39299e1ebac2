#pragma once

#include <QString>

#include "platform/registry_access.h"

namespace halvane {

/// Reads a value into `text`: a string as it stands, a double word as a decimal number. A value of
/// another kind leaves `text` as it was, and counts as read. False, and `text` empty, when the key
/// or the value cannot be read. Throws Overflow for a "double word" that is longer than one.
bool GetKeyValue(Registry& registry, RegistryRoot root, const QString& key, const QString& name,
                 QString& text);

}  // namespace halvane
