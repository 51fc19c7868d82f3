// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Performer.h"
#include "controls/Accessibility.h"
#include "controls/Application.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QtTest>
#include <QtWidgets>

inline QAccessibleInterface& Spoken(QWidget& control) {
    return *QAccessible::queryAccessibleInterface(&control);
}

// The game's application. The player sets the time stamps of its key events.
class PlayersApplication final : public Application {
public:
    using Application::Application;

    bool notify(QObject* receiver, QEvent* event) override {
        if (auto* key = dynamic_cast<QKeyEvent*>(event)) {
            key->setTimestamp(time);
        }
        return Application::notify(receiver, event);
    }

    static inline quint64 time = 0;
};

// Plays in the real window with mouse and keyboard; the clock, the dice and the store belong to the test.
class Player final : public Performer {
public:
    Player() {
        // An open dialog runs an event loop of its own. This timer fires there too, so that the script can go on.
        QObject::connect(&idle_, &QTimer::timeout, [this] { PerformNewDialog(); });
        idle_.start(0);
        Start();
    }

    Form1& Window() { return *window_; }

    template <typename Control = QWidget> Control& Find(const QString& name) const {
        return dynamic_cast<Control&>(*window_->findChild<QObject*>(name));
    }

private:
    std::function<int()> Clock(const char* field) {
        return [=, this] { return clock_.toString(field).toInt(); };
    }

    void Start() override {
        window_.reset();
        window_ = std::make_unique<Form1>(Platform{
            Clock("yyyy"), Clock("M"), Clock("d"), Clock("H"), Clock("m"), Clock("s"),
            /* reseed */ [this](int seconds) { seed_ = seconds, passes_ = 0; },
            /* nextUniform */ [this] { return (dice_[draws_++ % 2] - 0.5) / 6; },
            /* pumpEvents */ [this] { PassEvents(); },
            /* endProcess */ [this] { hasEnded_ = true; },
            /* openSettings */ [this] { return std::make_unique<QSettings>(storeName_, QSettings::IniFormat); }});
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void PassEvents() {
        ++passes_;
        if (passes_ % passesOfAPause == 1) {
            const int passes = passes_;
            PerformPause(passes / passesOfAPause + 1);
            passes_ = passes; // a roll inside the pause has counted its own
        }
    }

    // QSettings reads a file again only if its size or time has changed. Quick saves may get the same time, so each
    // save sets a later one.
    void Save(const ScoreTable& table) override {
        QFile file(storeName_);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(StoreContent(table).toUtf8());
        file.flush();
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(++saves_), QFileDevice::FileModificationTime));
    }

    bool IsDialogOpen() const override { return QApplication::activeModalWidget() != nullptr; }

    void PerformNewDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && dialog != dialog_ && dialog->isAncestorOf(QApplication::focusWidget())) {
            dialog_ = dialog;
            HoldKey(); // the key that has opened it
            PerformDialog();
            dialog_ = nullptr;
        }
    }

    void Press(const QString& step) override {
        QWidget& window = IsDialogOpen() ? *QApplication::activeModalWidget() : *window_;
        QWidget* control = window.findChild<QWidget*>(step);
        for (auto* button : window.findChildren<QPushButton*>()) {
            control = Caption(*button) == step ? button : control;
        }
        if (step == "close") {
            window.close();
        } else if (auto* entry = window.findChild<QAction*>(step)) {
            entry->trigger();
        } else if (control != nullptr) {
            const QPoint middle = control->mapTo(&window, control->rect().center());
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle);
        } else if (const QKeySequence keys(step); !keys.isEmpty() && keys[0].key() != Qt::Key_unknown) {
            PressKey(keys[0]);
        }
    }

    void PressKey(QKeyCombination key) {
        const QKeyCombination outer = std::exchange(heldKey_, key);
        SendKey(true, 100);
        HoldKey();
        SendKey(false, 100);
        heldKey_ = outer;
    }

    // A key that is held acts once, unless it moves the focus. X11 repeats it with a release and a press at the same
    // time; elsewhere Qt marks the repeats.
    void HoldKey() {
        const QStringList movesFocus{"Tab", "Shift+Tab", "Left", "Right", "Up", "Down", "Home", "End"};
        if (!movesFocus.contains(QKeySequence(heldKey_).toString())) {
            SendKey(false, 100);
            SendKey(true, 0);
            SendKey(false, 100, true);
            SendKey(true, 1, true);
        }
    }

    void SendKey(bool isDown, int later, bool isMarked = false) {
        QWindow* window = (IsDialogOpen() ? QApplication::activeModalWidget() : window_.get())->windowHandle();
        PlayersApplication::time += later;
        if (!hasEnded_) {
            window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::simulateEvent(window, isDown, heldKey_.key(), heldKey_.keyboardModifiers(), "", isMarked);
        }
    }

    QStringList See() override {
        QFile store(storeName_);
        // Tests send no accessibility events. The announcer's name is its latest announcement.
        auto& announcer = Find("Announcer");
        QStringList seen{"prompt: " + Spoken(*window_->statusBar()->findChild<QLabel*>()).text(QAccessible::Name),
                         "said: " + announcer.accessibleName(), "focus: " + window_->focusWidget()->objectName(),
                         "store: " + QString(store.open(QIODevice::ReadOnly) ? store.readAll() : ""),
                         Find<QAction>("mnuGameRoll").isEnabled() ? "mnuGameRoll: enabled" : "mnuGameRoll: disabled"};
        announcer.setAccessibleName("");
        for (QWidget* control : window_->centralWidget()->findChildren<QWidget*>()) {
            seen << (control->isHidden() ? "" : SeeControl(*control));
        }
        if (const QWidget* dialog = QApplication::activeModalWidget()) {
            const QString button = Caption(dynamic_cast<const QPushButton&>(*dialog->focusWidget()));
            seen << Seen("dialog", {dialog->windowTitle(), button, dialog->accessibleName()});
            for (const auto* label : dialog->findChildren<QLabel*>()) {
                seen << (label->isHidden() ? "" : Seen(label->objectName(), {label->text(), label->accessibleName()}));
            }
        }
        return seen;
    }

    static QString Caption(const QPushButton& button) { return button.text().remove('&').remove(' '); }

    static QString SeeControl(QWidget& control) {
        QString shown, look;
        if (const auto* picture = dynamic_cast<const PictureFace*>(&control)) {
            shown = picture->FileName().section('/', -1);
        } else if (const auto* label = dynamic_cast<const QLabel*>(&control)) {
            shown = label->text();
            look = label->palette().windowText().color().name();
            look += label->alignment() == (Qt::AlignLeft | Qt::AlignTop) ? " left" : " centred";
            look += label->font().bold() ? " bold" : "";
            look += label->autoFillBackground() ? " on " + label->palette().window().color().name() : "";
        }
        return Seen(control.objectName(),
                    {shown, look, control.accessibleName(), Spoken(control).text(QAccessible::Description)});
    }

    QTemporaryDir folder_;
    QString storeName_ = folder_.filePath("KVR.ini");
    int saves_ = 0;
    int draws_ = 0;
    QKeyCombination heldKey_;
    QTimer idle_;
    const QWidget* dialog_ = nullptr; // the one that the script is in
    std::unique_ptr<Form1> window_;
};
