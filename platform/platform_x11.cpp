#include "platform/platform_x11.h"

#include <QtGlobal>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QRegion>
#include <QWidget>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace halvane {
namespace {

// Of the message that starts a move.
constexpr std::uint32_t kMove = 8;
constexpr std::uint32_t kFromAnApplication = 1;

xcb_connection_t* Connection() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t Atom(xcb_connection_t* connection, std::string_view name) {
  const auto cookie =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
      xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// The server's numbers of the toolkit's buttons in their order: left, right, middle, and the side
// buttons, before which four numbers stand for the wheel.
constexpr std::array<std::uint32_t, 5> kButtons{1, 3, 2, 8, 9};

std::uint32_t NumberOf(Qt::MouseButton button) {
  const auto at = static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(button)));
  return at < kButtons.size() ? kButtons.at(at) : 1;
}

}  // namespace

bool ShapeX11Window(const QWidget& window, const QRegion& region) {
  xcb_connection_t* connection = Connection();
  if (connection == nullptr) return false;
  std::vector<xcb_rectangle_t> rectangles;
  for (const QRect& part : region) {
    rectangles.push_back({static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                          static_cast<std::uint16_t>(part.width()),
                          static_cast<std::uint16_t>(part.height())});
  }
  xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                       XCB_CLIP_ORDERING_YX_BANDED, static_cast<xcb_window_t>(window.winId()), 0, 0,
                       static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
  return true;
}

bool MoveX11Window(const QWidget& window, Qt::MouseButton button) {
  xcb_connection_t* connection = Connection();
  if (connection == nullptr) return false;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const auto pointerCookie = xcb_query_pointer(connection, root);
  const std::unique_ptr<xcb_query_pointer_reply_t, decltype(&std::free)> pointer(
      xcb_query_pointer_reply(connection, pointerCookie, nullptr), &std::free);
  if (!pointer) return false;
  const std::uint32_t number = NumberOf(button);
  // A window manager would wait for the release of a button that is up again.
  constexpr std::uint32_t kButtonsInMask = 5;
  const bool known = number <= kButtonsInMask;
  if (known && (pointer->mask & (XCB_BUTTON_MASK_1 << (number - 1))) == 0) return true;
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = static_cast<xcb_window_t>(window.winId());
  message.type = Atom(connection, "_NET_WM_MOVERESIZE");
  message.data.data32[0] = static_cast<std::uint32_t>(pointer->root_x);
  message.data.data32[1] = static_cast<std::uint32_t>(pointer->root_y);
  message.data.data32[2] = kMove;
  message.data.data32[3] = number;
  message.data.data32[4] = kFromAnApplication;
  // The window manager takes the mouse over, so it has to be free.
  xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
  xcb_send_event(connection, 0, root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&message));
  xcb_flush(connection);
  return true;
}

}  // namespace halvane

#else

namespace halvane {

bool ShapeX11Window(const QWidget& /*window*/, const QRegion& /*region*/) { return false; }
bool MoveX11Window(const QWidget& /*window*/, Qt::MouseButton /*button*/) { return false; }

}  // namespace halvane

#endif
