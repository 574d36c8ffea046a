#include "pruebas/qt/Atiende.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <chrono>
#include <utility>

namespace analizador {

using namespace std::chrono_literals;

TAtiende::TAtiende(std::function<void(QDialog&)> que)
    : que_(std::move(que)), anterior_(QApplication::activeModalWidget()) {
    QObject::connect(&reloj_, &QTimer::timeout, [this] { Mira(); });
    reloj_.start(5ms);
}

TAtiende::~TAtiende() {
    EXPECT_TRUE(vino_) << "no dialog opened";
}

void TAtiende::Mira() {
    auto* const dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr || dialogo == anterior_) return;
    reloj_.stop();
    vino_ = true;
    QTimer::singleShot(5s, dialogo, [dialogo] {
        ADD_FAILURE() << "the dialog stayed open";
        dialogo->reject();
    });
    que_(*dialogo);
}

}  // namespace analizador
