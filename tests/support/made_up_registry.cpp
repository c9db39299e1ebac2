#include "tests/support/made_up_registry.h"

namespace halvane {

class MadeUpRegistry::Key : public RegistryKey {
 public:
  Key(const Values& values, QStringList& calls) : values_(values), calls_(calls) {}
  ~Key() override { calls_.append("close"); }

  std::optional<RegistryValue> Query(const std::string& name, std::size_t capacity) override {
    calls_.append(QString("query %1 %2").arg(name.c_str()).arg(capacity));
    const auto found = values_.find(name);
    if (found == values_.end() || found->second.bytes.size() > capacity) return std::nullopt;
    return found->second;
  }

 private:
  const Values& values_;
  QStringList& calls_;
};

void MadeUpRegistry::Put(const std::string& path, const std::string& name,
                         const RegistryValue& value) {
  keys_[path][name] = value;
}

std::unique_ptr<RegistryKey> MadeUpRegistry::Open(RegistryRoot /*root*/, const std::string& path,
                                                  std::uint32_t access) {
  calls_.append(QString("open %1 %2").arg(path.c_str()).arg(access));
  const auto found = keys_.find(path);
  if (found == keys_.end()) return nullptr;
  return std::make_unique<Key>(found->second, calls_);
}

}  // namespace halvane
