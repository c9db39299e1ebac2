#pragma once

#include <memory>

#include "tests/support/form_support.h"
#include "tools/ctd/frm_ctd.h"

namespace halvane {

/// A test of the CTD Risk Index form, which is used with mouse and keys on the controls that are
/// there to be used: a click on one that is hidden or disabled fails the test.
class CtdFormTest : public ShellTest {
 public:
  ~CtdFormTest() override;

 protected:
  CtdFormTest();

  /// Loads the form on the job as it stands and shows it; later calls load the same form again.
  void Load();
  /// Takes the form away as the end of the program does, shown or not.
  void Close() { own_.reset(); }
  /// Uses another form from here on, one that the main window opened.
  void Use(QWidget& form) { form_ = &form; }
  [[nodiscard]] QWidget& form() const { return *form_; }
  template <typename T = QWidget>
  [[nodiscard]] T& Control(const QString& name) const {
    return Find<T>(*form_, name);
  }

  /// Clicks a button, ribbon or option.
  void Click(const QString& name) const;
  /// Clicks the tab of that number.
  void OpenTab(int tab) const;
  /// Clicks into a box and types over what stands there; an empty text clears it.
  void Type(const QString& box, const QString& text) const;
  /// Releases a key in a box that changes nothing.
  void TouchKey(const QString& box) const;
  [[nodiscard]] QString TextOf(const QString& box) const;
  /// Indexes of the ribbons of an array that are down, a blank between them.
  [[nodiscard]] std::string Down(const QString& array) const;

  /// Clicks the node at a place of the task list, counted from 0.
  void SelectNode(int place) const;
  /// The names in the task list.
  [[nodiscard]] QStringList Nodes() const;
  /// The name of the node that is selected.
  [[nodiscard]] QString SelectedNode() const;

  /// What the report pane shows, a line an end, "|" for a tab, "^" for a picture.
  [[nodiscard]] std::string Pane() const;

  /// Runs `action`, which has to end the program on a failure of that sentence with a rescue copy
  /// of the job; gives the copy.
  std::string EndedOn(const QString& sentence, const std::function<void()>& action);

  static int CurrentTask() { return static_cast<int>(Module1.CurrentTask.AsDouble()); }

 private:
  std::unique_ptr<FrmCTD> own_;
  QWidget* form_ = nullptr;
};

/// A ribbon array as it stands on the form: the caption of its frame and, from the left, index and
/// caption of each ribbon.
struct CtdArrayRow {
  const char* array;
  const char* frame;
  std::vector<std::pair<int, QString>> ribbons;
};
/// Hand and wrist.
std::vector<CtdArrayRow> CtdHandArrays();
/// Postures, in the order of the slots 0 to 7.
std::vector<CtdArrayRow> CtdPostureArrays();

}  // namespace halvane
