#include "platform/registry.h"

#include <memory>
#include <optional>

#include "core/number_text.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

constexpr std::size_t kBufferCharacters = 1024;
constexpr qsizetype kDoubleWordBytes = 4;

/// The number whose hexadecimal digits are the bytes from last to first, two digits each.
QString DoubleWordText(const QByteArray& bytes) {
  if (bytes.size() > kDoubleWordBytes) throw RuntimeFailure(FailureKind::Overflow);
  std::uint32_t number = 0;
  unsigned place = 0;
  for (const char byte : bytes) {
    number |= std::uint32_t{static_cast<unsigned char>(byte)} << place;
    place += 8;
  }
  return QString::fromStdString(PlainText(static_cast<double>(number)));
}

}  // namespace

bool GetKeyValue(Registry& registry, RegistryRoot root, const QString& key, const QString& name,
                 QString& text) {
  const std::unique_ptr<RegistryKey> open = registry.Open(root, key.toStdString(), kRegistryAccess);
  std::optional<RegistryValue> value;
  if (open) value = open->Query(name.toStdString(), kBufferCharacters);
  if (!value) {
    text.clear();
    return false;
  }
  // The cut comes before the kind is looked at, also in a number: its lowest bytes that are not
  // zero are what counts. This is wanted.
  const QByteArray bytes(value->bytes.c_str());
  if (value->type == kRegistryString) text = QString::fromUtf8(bytes);
  if (value->type == kRegistryDoubleWord) text = DoubleWordText(bytes);
  return true;
}

}  // namespace halvane
