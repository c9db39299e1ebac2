#include "platform/registry_access.h"

namespace halvane {
namespace {

/// A system without a registry is one in which no key is there.
class NoRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(RegistryRoot /*root*/, const std::string& /*path*/,
                                    std::uint32_t /*access*/) override {
    return nullptr;
  }
};

}  // namespace

Registry& SystemRegistry() {
  static NoRegistry none;
  return none;
}

}  // namespace halvane
