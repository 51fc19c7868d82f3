// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Teller.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QtTest>
#include <QtWidgets>

// Does the words with the real window, by its mouse and keys, on the stand-in machine.
class Player final : public Teller {
public:
    Player() {
        // In whatever loop runs while a dialog is open, its answers are the next words.
        QObject::connect(&idle_, &QTimer::timeout, [this] { AnswerDialog(); });
        idle_.start(0);
        Start();
    }

    Form1& Window() { return *window_; }

    template <typename Control = QWidget> Control& Find(const QString& name) const {
        return dynamic_cast<Control&>(*window_->findChild<QObject*>(name));
    }

protected:
    void Start() override {
        window_.reset();
        window_ = std::make_unique<Form1>(Platform{
            .year = [this] { return ReadClock().date().year(); },
            .month = [this] { return ReadClock().date().month(); },
            .day = [this] { return ReadClock().date().day(); },
            .hour = [this] { return ReadClock().time().hour(); },
            .minute = [this] { return ReadClock().time().minute(); },
            .second = [this] { return ReadClock().time().second(); },
            .reseed = [this](int seconds) { seed_ = seconds, passes_ = 0; },
            .nextUniform = [this] { return Uniform(dice_[draws_++ % 2]); },
            .pumpEvents = [this] { Pass(); },
            .endProcess = [this] { hasEnded_ = true; },
            .store = SettingsStore(storeName_),
        });
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void SetStore(const QString& content) override {
        QFile file(storeName_);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content.toUtf8()) > 0);
    }

    void Resize(const QSize& outer) override {
        window_->resize(outer.shrunkBy(window_->windowHandle()->frameMargins()));
    }

    bool IsDialogOpen() const override { return QApplication::activeModalWidget() != nullptr; }

    void Press(const QString& word) override {
        QWidget& window = IsDialogOpen() ? *QApplication::activeModalWidget() : *window_;
        const QWidget* control = window.findChild<QWidget*>(word);
        for (const auto* button : window.findChildren<QPushButton*>()) {
            control = button->text() == "&" + word ? button : control;
        }
        const QKeySequence keys(word);
        if (word == "close") {
            window.close();
        } else if (auto* entry = window.findChild<QAction*>(word)) {
            entry->trigger();
        } else if (control != nullptr) {
            const QPoint middle = control->mapTo(&window, control->rect().center());
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
        } else if (!keys.isEmpty() && keys[0].key() != Qt::Key_unknown) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::keyClick(window.windowHandle(), keys[0].key(), keys[0].keyboardModifiers());
        }
    }

    QStringList See() const override {
        QString table, open;
        for (std::int16_t rank = 1; rank <= 5; ++rank) {
            table += window_->HighScores().Caption(rank) + '|';
        }
        if (const QWidget* dialog = QApplication::activeModalWidget()) {
            open = dialog->objectName();
            for (const auto* label :
                 dialog->findChildren<QLabel*>(QRegularExpression("lblHighScore|qt_msgbox_label"))) {
                open += label->text() + '|';
            }
        }
        QFile file(storeName_);
        const QString store = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        QStringList seen{"prompt " + window_->statusBar()->findChild<QLabel*>()->text(),
                         QString("menu %1").arg(Find<QAction>("mnuGameRoll").isEnabled()),
                         "focus " + window_->focusWidget()->objectName(),
                         "table " + table,
                         "store " + store,
                         "open " + open};
        for (const auto* control : window_->centralWidget()->findChildren<QWidget*>()) {
            seen << control->objectName() + ' ' + Place(control->geometry()) + ' ' + State(*control);
        }
        return seen;
    }

private:
    // The lowest number that is this face, or one near the highest, by turns.
    double Uniform(int face) const { return draws_ % 4 < 2 ? (face - 1) / 6.0 : face / 6.0 - 1e-9; }

    void Pass() {
        if (++passes_ % pause == 1) {
            const int passes = passes_;
            InPause(passes / pause + 1);
            passes_ = passes; // a roll inside the pause counts its own
        }
    }

    void AnswerDialog() {
        if (IsDialogOpen() && QApplication::activeModalWidget()->isActiveWindow()) {
            idle_.stop();
            InDialog();
            idle_.start();
        }
    }

    static QString State(const QWidget& control) {
        const auto* picture = dynamic_cast<const PictureFace*>(&control);
        const auto* label = qobject_cast<const QLabel*>(&control);
        const QString shown = picture ? QString::number(picture->Index()) : label ? label->text() : "";
        return control.isHidden() ? "hidden" : (shown + ' ' + control.accessibleName()).trimmed();
    }

    QTemporaryDir folder_;
    QString storeName_ = folder_.filePath("KVR.ini");
    int draws_ = 0;
    QTimer idle_;
    std::unique_ptr<Form1> window_;
};
