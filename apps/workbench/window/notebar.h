#pragma once

#include <QFrame>
#include <functional>
#include <utility>
#include <vector>
class QHBoxLayout;
class QLabel;

namespace tolvi {

/// A line across the window that tells something without stopping the user, with a few things to do about it. It goes
/// when one of them is done or it is closed.
class TNoteBar final : public QFrame {
  Q_OBJECT

 public:
  using TChoice = std::pair<QString, std::function<void()>>;

  explicit TNoteBar(QWidget* parent = nullptr);

  /// In the place of the note before.
  void Tell(const QString& words, const std::vector<TChoice>& choices = {});
  QString GetWords() const;

 private:
  QLabel* FWords;
  QHBoxLayout* FChoices;
};

}  // namespace tolvi
