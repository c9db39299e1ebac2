#pragma once

#include <QStringList>
#include <map>
#include <string>

#include "platform/registry_access.h"

namespace halvane {

/// The registry of a test: the keys and values that it was given, and a record of what was done.
class MadeUpRegistry : public Registry {
 public:
  /// Puts a value there, and its key with it.
  void Put(const std::string& path, const std::string& name, const RegistryValue& value);
  /// "open PATH ACCESS", "query NAME CAPACITY" or "close", in order.
  [[nodiscard]] const QStringList& calls() const { return calls_; }

  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::string& path,
                                    std::uint32_t access) override;

 private:
  using Values = std::map<std::string, RegistryValue>;
  class Key;

  std::map<std::string, Values> keys_;
  QStringList calls_;
};

}  // namespace halvane
