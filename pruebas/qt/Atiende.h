#pragma once

#include <QDialog>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace analizador {

// A clerk who waits for the next dialog to open and does something with it, within the dialog's own loop. One
// that is still open a while afterwards is closed and fails the test, and so does one that never came.
class TAtiende {
  public:
    explicit TAtiende(std::function<void(QDialog&)> que);
    ~TAtiende();
    TAtiende(const TAtiende&) = delete;
    TAtiende& operator=(const TAtiende&) = delete;

    [[nodiscard]] bool Vino() const { return vino_; }

  private:
    void Mira();

    std::function<void(QDialog&)> que_;
    QWidget* anterior_;
    bool vino_ = false;
    QTimer reloj_;
};

}  // namespace analizador
