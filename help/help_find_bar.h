#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace halvane {

class HelpBrowser;

/// The strip below a help page in which a text is looked for. Hidden until it is asked for.
class HelpFindBar : public QWidget {
  Q_OBJECT
 public:
  HelpFindBar(HelpBrowser& page, QWidget* parent);

  /// Shows the strip with its text selected, ready to be typed over.
  void Open();
  void Close();
  /// Goes to the next place of the text, or the one before; opens the strip where there is no text.
  void FindNext() { Find(false); }
  void FindPrevious() { Find(true); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool backward);
  void FindWhileTyping();
  void Show(bool found, bool wrapped, bool backward);

  HelpBrowser& page_;
  QLineEdit* text_;
  QLabel* result_;
};

}  // namespace halvane
