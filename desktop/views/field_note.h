#pragma once

#include <QLabel>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace veraqua {

/// Says at an input why a check has refused it, until the user types into it or goes on.
class FieldNote {
  public:
    void Show(QWidget& input, const QString& why);
    void Clear();

  private:
    QPointer<QWidget> input_;
    QPointer<QLabel> note_;
};

}  // namespace veraqua
