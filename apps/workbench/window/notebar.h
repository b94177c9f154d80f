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
///
/// A note without a topic is of the moment: the next one takes its place, and `Pass` ends it. One with a topic stays
/// until it is answered; it is told again once what is of the moment has gone, and after those told before it.
class TNoteBar final : public QFrame {
  Q_OBJECT

 public:
  using TChoice = std::pair<QString, std::function<void()>>;

  explicit TNoteBar(QWidget* parent = nullptr);

  /// In the place of the note before of the same topic. The buttons are "note.choice1", "note.choice2", ..., for
  /// scripts.
  void Tell(const QString& words, const std::vector<TChoice>& choices = {}, const QString& topic = {});
  /// The note of the moment goes.
  void Pass() { Withdraw({}); }
  /// The note of that topic goes, if there is one.
  void Withdraw(const QString& topic);
  /// Of the notes that stay, in the order in which they were told.
  QStringList GetTopics() const;
  /// Of the note that is shown; empty for none.
  QString GetWords() const;
  /// Gives the focus to the first of the things to do, if there is a note.
  void GoThere();

 private:
  struct TNote {
    QString Topic, Words;
    std::vector<TChoice> Choices;
    // Tells the notes of one topic from each other.
    unsigned Number = 0;
  };

  void ShowFirst();
  void ShowNote(const TNote& note);
  void Answered();

  QLabel* FWords;
  QHBoxLayout* FChoices;
  QWidget* FClose;
  // The first one is shown; that of the moment goes before those that stay.
  std::vector<TNote> FNotes;
  unsigned FShown = 0, FTold = 0;
};

}  // namespace tolvi
