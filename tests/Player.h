// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Performer.h"
#include "controls/Application.h"
#include "controls/Picture.h"
#include "mainwindow/Form1.h"

#include <QtTest>
#include <QtWidgets>

inline QAccessibleInterface& Accessible(QWidget& control) {
    return *QAccessible::queryAccessibleInterface(&control);
}

// The game's application. The player sets the time stamps of its key events.
class PlayersApplication final : public Application {
public:
    using Application::Application;

    bool notify(QObject* receiver, QEvent* event) override {
        if (auto* key = dynamic_cast<QKeyEvent*>(event)) {
            key->setTimestamp(hasTimes ? time : 0);
        }
        return Application::notify(receiver, event);
    }

    static inline quint64 time = 0;
    static inline bool hasTimes = true; // some keyboards send no timestamps
};

// Plays in the real window with mouse and keyboard; the clock, the dice and the store belong to the test.
class Player final : public Performer {
public:
    explicit Player(bool hasTimes = true) {
        PlayersApplication::hasTimes = hasTimes;
        // An open dialog runs an event loop of its own. This timer fires there too, so that the script can go on.
        QObject::connect(&idle_, &QTimer::timeout, [this] { PerformNewDialog(); });
        idle_.start(0);
        Start();
    }

    Form1& Window() { return *window_; }
    QImage Photo() const { return photo_; } // the last one

    QWidget& Find(const QString& name) const { return *window_->findChild<QWidget*>(name); }

    // What a screen reader finds in a window or on the table, in the order in which it reads it.
    static QStringList Texts(QWidget& parent) {
        QStringList texts;
        for (int at = 0; at < Accessible(parent).childCount(); ++at) {
            texts << Named(*Accessible(parent).child(at));
        }
        return texts;
    }

private:
    void Start() override {
        const auto clock = [this](const char* field) { return [=, this] { return clock_.toString(field).toInt(); }; };
        window_.reset();
        window_ = std::make_unique<Form1>(Platform{
            clock("yyyy"), clock("M"), clock("d"), clock("H"), clock("m"), clock("s"),
            /* reseed */ [this](int seconds) { roll_ = {.seed = seconds}; },
            /* nextUniform */ [this] { return (dice_[draws_++ % 2] - 0.5) / 6; },
            /* pumpEvents */ [this] { PassEvents(); },
            /* endProcess */ [this] { hasEnded_ = true; },
            /* openSettings */ [this] { return std::make_unique<QSettings>(storeName_, QSettings::IniFormat); }});
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
        QTest::mouseMove(window_->windowHandle(), QPoint(1, 100)); // onto the bare table
    }

    void PassEvents() {
        ++roll_.passes;
        if (roll_.passes % passesOfAPause == 1) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); // paints
            const int passes = roll_.passes;
            PerformPause(passes / passesOfAPause + 1);
            roll_.passes = passes; // a roll inside the pause has counted its own
        }
    }

    // QSettings reads a file again only if its size or time has changed. Quick saves may get the same time; the time of
    // the game's clock is a new one in each step.
    void Save(const ScoreTable& table) override {
        QFile file(storeName_);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(StoreContent(table).toUtf8());
        file.flush();
        QVERIFY(file.setFileTime(clock_, QFileDevice::FileModificationTime));
    }

    bool IsDialogOpen() const override { return QApplication::activeModalWidget() != nullptr; }

    void PerformNewDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && dialog != dialog_ && dialog->isAncestorOf(QApplication::focusWidget())) {
            dialog_ = dialog;
            HoldKey(); // the key that opened it, if one did
            PerformDialog();
            dialog_ = nullptr;
        }
    }

    void Press(const QString& step, bool isInDialog) override {
        QWidget& window = isInDialog ? *QApplication::activeModalWidget() : *window_;
        const QString name = step.section(':', -1);
        QWidget* control = window.findChild<QWidget*>(name);
        for (auto* button : window.findChildren<QPushButton*>()) {
            control = Caption(*button) == name ? button : control;
        }
        if (window.metaObject()->indexOfSlot(qPrintable(step + "()")) >= 0) { // close, showMinimized or showNormal
            QMetaObject::invokeMethod(&window, qPrintable(step));
        } else if (step == "enlarge") {
            window.resize(QSize(700, 750).shrunkBy(window.windowHandle()->frameMargins()));
        } else if (step == "photo") {
            photo_ = Photograph(window);
        } else if (step == "wait") {
            QTRY_COMPARE_WITH_TIMEOUT(window.accessibleName(), "", 10'000);
        } else if (step.startsWith("focus:")) {
            Accessible(*control).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        } else if (auto* entry = window.findChild<QAction*>(step)) {
            entry->trigger();
        } else if (control != nullptr) {
            UseMouse(*window.windowHandle(), control->mapTo(&window, control->rect().center()), step);
        } else if (const QKeySequence keys(name); !keys.isEmpty() && keys[0].key() != Qt::Key_unknown) {
            PressKey(keys[0], movesFocus.contains(step));
        }
    }

    // What is on the screen: it shows whether the game has repainted what changed.
    static QImage Photograph(QWidget& window) {
        QCoreApplication::processEvents();
        if (window.devicePixelRatio() != 1) {
            return window.grab().toImage(); // paints everything
        }
        window.backingStore()->flush(window.rect());
        return window.screen()->grabWindow(window.winId()).toImage();
    }

    static void UseMouse(QWindow& window, const QPoint& point, const QString& step) {
        QTest::mouseMove(&window, point);
        if (step.startsWith("double:")) {
            QTest::mouseDClick(&window, Qt::LeftButton, {}, point);
        } else if (step.startsWith("press:")) {
            QTest::mousePress(&window, Qt::LeftButton, {}, point);
        } else {
            QTest::mouseClick(&window, Qt::LeftButton, {}, point);
        }
    }

    // A key that moves the focus is sent as a repeat and must act. Any other is held, and its repeats must not act.
    void PressKey(QKeyCombination key, bool isRepeated) {
        // A press at the time of another key's release is no repeat. Without times, neither is one of the same key.
        const QKeyCombination outer = std::exchange(heldKey_, PlayersApplication::hasTimes ? Qt::Key_Shift : key);
        SendKey(false, 100);
        heldKey_ = key;
        SendKey(true, 0, isRepeated);
        if (!isRepeated) {
            HoldKey();
        }
        SendKey(false, 100);
        heldKey_ = outer;
    }

    // X11 repeats a key with a release and a press at the same time; elsewhere, and without times, only Qt's marks
    // tell.
    void HoldKey() {
        SendKey(false, 100, !PlayersApplication::hasTimes);
        SendKey(true, 0, !PlayersApplication::hasTimes);
        SendKey(true, 100, true);
    }

    // `delay` is the time since the last key event, in milliseconds. Qt marks an event that it takes for a repeat.
    void SendKey(bool isDown, int delay, bool isMarked = false) {
        QWindow* window = (IsDialogOpen() ? QApplication::activeModalWidget() : window_.get())->windowHandle();
        PlayersApplication::time += delay;
        if (!hasEnded_) {
            window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::simulateEvent(window, isDown, heldKey_.key(), heldKey_.keyboardModifiers(), "", isMarked);
        }
    }

    QStringList See() override {
        QFile store(storeName_);
        // No screen reader runs here. The announcer's name is its latest announcement.
        auto& announcer = Find("Announcer");
        QStringList seen{"said: " + Named(Accessible(announcer)),
                         "prompt: " + Named(Accessible(*window_->statusBar()->findChild<QLabel*>())),
                         "focus: " + window_->focusWidget()->objectName(),
                         "store: " + QString(store.open(QIODevice::ReadOnly) ? store.readAll() : "")};
        announcer.setAccessibleName("");
        for (QWidget* control : window_->centralWidget()->findChildren<QWidget*>()) {
            seen << (control->isHidden() ? "" : SeeControl(*control));
        }
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            seen += SeeDialog(*dialog);
        }
        return seen;
    }

    QStringList SeeDialog(QWidget& dialog) const {
        const auto* question = qobject_cast<const QMessageBox*>(&dialog);
        const bool isAbove = dialog.windowHandle()->transientParent() == window_->windowHandle();
        const bool isFixed = dialog.minimumSize() == dialog.maximumSize();
        const bool isFramed = dialog.windowFlags() & Qt::WindowCloseButtonHint && !dialog.windowIcon().isNull();
        const bool isPlain =
            question == nullptr || (question->icon() == QMessageBox::NoIcon && question->textInteractionFlags() == 0);
        const QPoint offCentre = dialog.frameGeometry().center() - dialog.screen()->geometry().center();
        const bool isCentred = question != nullptr || offCentre.manhattanLength() <= 4;
        return {Seen("dialog", {dialog.windowTitle(), Caption(*dialog.focusWidget()), Named(Accessible(dialog)),
                                isAbove ? "" : "not above", isFixed ? "" : "can be resized",
                                isFramed ? "" : "no close box or icon", isPlain ? "" : "icon or text to select",
                                isCentred ? "" : "off centre"}),
                Seen("texts", Texts(dialog))};
    }

    static QString Caption(const QWidget& button) { return button.property("text").toString().remove('&').remove(' '); }

    // What a screen reader says of a control that has a name: "New Game (Button)".
    static QString Named(QAccessibleInterface& control) {
        const QString name = control.text(QAccessible::Name);
        return name.isEmpty() ? "" : name + " (" + QDebug::toString(control.role()).section(':', -1) + ")";
    }

    static QString SeeControl(QWidget& control) {
        const auto* picture = dynamic_cast<const PictureFace*>(&control);
        const auto* label = dynamic_cast<const QLabel*>(&control);
        return Seen(control.objectName(),
                    {picture ? picture->FileName().section('/', -1) : "", label ? label->text() : "",
                     Named(Accessible(control)), Accessible(control).text(QAccessible::Description)});
    }

    QTemporaryDir folder_;
    QString storeName_ = folder_.filePath("KVR.ini");
    int draws_ = 0;
    QKeyCombination heldKey_;
    QImage photo_;
    QTimer idle_;
    const QWidget* dialog_ = nullptr; // the one that the script is in
    std::unique_ptr<Form1> window_;
};
