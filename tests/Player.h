// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Teller.h"
#include "controls/Application.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QtWidgets>

// The game's application. The player sets the time stamps of its key events.
class PlayersApplication final : public Application {
public:
    using Application::Application;

    bool notify(QObject* receiver, QEvent* event) override {
        if (auto* key = dynamic_cast<QKeyEvent*>(event)) {
            key->setTimestamp(time += 100);
        }
        return Application::notify(receiver, event);
    }

    static inline quint64 time = 0;
};

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
        const auto clock = [this](const char* field) {
            return [this, field] { return ReadClock().toString(field).toInt(); };
        };
        window_.reset();
        window_ = std::make_unique<Form1>(
            Platform{clock("yyyy"), clock("M"), clock("d"), clock("H"), clock("m"), clock("s"),
                     [this](int seconds) { seed_ = seconds, passes_ = 0; },
                     [this] { return Uniform(dice_[draws_++ % 2]); }, [this] { Pass(); }, [this] { hasEnded_ = true; },
                     [this] { return std::make_unique<QSettings>(storeName_, QSettings::IniFormat); }});
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    // QSettings reads a file again only if its size or time has changed. Quick saves may get the same time, so each
    // save sets a later one.
    void SetStore(const QString& content) override {
        Replace(storeName_, content.toUtf8());
        QFile file(storeName_);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(++saves_), QFileDevice::FileModificationTime));
    }

    void Resize(const QSize& outer) override {
        window_->resize(outer.shrunkBy(window_->windowHandle()->frameMargins()));
    }

    bool IsDialogOpen() const override { return QApplication::activeModalWidget() != nullptr; }

    void Press(const QString& word) override {
        QWidget& window = IsDialogOpen() ? *QApplication::activeModalWidget() : *window_;
        const auto* control = window.findChild<QWidget*>(word);
        for (const auto* button : window.findChildren<QPushButton*>()) {
            control = button->text() == "&" + word ? button : control;
        }
        if (word == "close") {
            window.close();
        } else if (auto* entry = window.findChild<QAction*>(word)) {
            entry->trigger();
        } else if (control != nullptr) {
            const QPoint middle = control->mapTo(&window, control->rect().center());
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
        } else if (const QKeySequence keys(word); !keys.isEmpty() && keys[0].key() != Qt::Key_unknown) {
            Press(*window.windowHandle(), keys[0]);
        }
    }

    QStringList See() const override {
        QString open;
        if (const QWidget* dialog = QApplication::activeModalWidget()) {
            open = dialog->objectName() + dialog->accessibleName();
            for (const auto* label : dialog->findChildren<QLabel*>(QRegularExpression("High|msgbox_label"))) {
                open += label->text() + '|';
            }
        }
        const QString store = Bytes(storeName_);
        const QString canRoll = Find<QAction>("mnuGameRoll").isEnabled() ? "yes" : "no";
        const auto* prompt = window_->statusBar()->findChild<QLabel*>();
        QStringList seen{"prompt " + prompt->text(), "said " + Find("Announcer").accessibleName(),
                         "menu " + canRoll,          "focus " + window_->focusWidget()->objectName(),
                         "store " + store,           "open " + open};
        for (const auto* control : window_->centralWidget()->findChildren<QWidget*>()) {
            const auto* picture = dynamic_cast<const PictureFace*>(control);
            const auto* label = qobject_cast<const QLabel*>(control);
            const QString shown = picture ? QString::number(picture->Index()) : label ? label->text() : "";
            const QStringList look{control->objectName(), Place(control->geometry()), shown, control->accessibleName()};
            seen += control->isHidden() ? QStringList() : QStringList(look.join(' ').trimmed());
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
        if (IsDialogOpen() && QApplication::activeModalWidget()->isAncestorOf(QApplication::focusWidget())) {
            idle_.stop();
            InDialog();
            idle_.start();
        }
    }

    // Enter is held for a while, which is not to be seen; a dialog is gone before.
    void Press(QWindow& window, QKeyCombination key) {
        window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const bool isHeld = key.key() == Qt::Key_Return && !IsDialogOpen();
        QTest::keyPress(&window, key.key(), key.keyboardModifiers());
        for (const bool isDown : isHeld ? QList{false, true} : QList<bool>()) {
            QTest::simulateEvent(&window, isDown, Qt::Key_Return, {}, "", true);
        }
        QTest::keyRelease(&window, key.key(), key.keyboardModifiers());
    }

    QTemporaryDir folder_;
    QString storeName_ = folder_.filePath("KVR.ini");
    int saves_ = 0;
    int draws_ = 0;
    QTimer idle_;
    std::unique_ptr<Form1> window_;
};
