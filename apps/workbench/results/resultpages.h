// What stands in place of rows, and the line of words above them.
#pragma once

#include <QLabel>
#include <QScrollArea>
#include <QWidget>
#include <functional>
class QPlainTextEdit;
class QPushButton;

namespace tolvi {

/// One line that never asks for room: it ends in dots where it is too long, and a tool tip tells it whole.
class TStatusLine final : public QLabel {
  Q_OBJECT

 public:
  explicit TStatusLine(QWidget* parent = nullptr);

  void SetWords(const QString& words);
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// Says friendly why there is nothing.
class TEmptyPage final : public QWidget {
  Q_OBJECT

 public:
  explicit TEmptyPage(QWidget* parent = nullptr);
  void SetWords(const QString& words);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Colour();

  QLabel* FWords;
};

/// Words about what went wrong, to be read and copied, and a button that leads to its place.
class TFaultPage final : public QScrollArea {
  Q_OBJECT

 public:
  explicit TFaultPage(QWidget* parent = nullptr);

  /// Shows other words; the button goes.
  void SetFault(const QString& heading, const QString& words);
  /// An empty caption takes the button away.
  void SetAction(const QString& caption, std::function<void()> action);

 private:
  void FitWords();

  QLabel *FSign, *FHeading;
  QPlainTextEdit* FWords;
  QPushButton *FButton, *FCopy;
  std::function<void()> FAction;
};

}  // namespace tolvi
