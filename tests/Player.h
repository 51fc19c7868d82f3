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
    void Start() override {
        const auto clock = [this](const char* field) { return [=, this] { return clock_.toString(field).toInt(); }; };
        window_.reset();
        window_ = std::make_unique<Form1>(Platform{
            clock("yyyy"), clock("M"), clock("d"), clock("H"), clock("m"), clock("s"),
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
            QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); // paints
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

    void Press(const QString& step, bool isInDialog) override {
        QWidget& window = isInDialog ? *QApplication::activeModalWidget() : *window_;
        const QString name = step.section(':', -1);
        QWidget* control = window.findChild<QWidget*>(name);
        for (auto* button : window.findChildren<QPushButton*>()) {
            control = Caption(*button) == name ? button : control;
        }
        if (step == "close") {
            window.close();
        } else if (auto* entry = window.findChild<QAction*>(step)) {
            entry->trigger();
        } else if (control != nullptr) {
            UseMouse(*window.windowHandle(), control->mapTo(&window, control->rect().center()), step);
        } else if (const QKeySequence keys(name); !keys.isEmpty() && keys[0].key() != Qt::Key_unknown) {
            PressKey(keys[0], movesFocus.contains(step));
        }
    }

    // Quick clicks on different controls are not a double click.
    static void UseMouse(QWindow& window, const QPoint& point, const QString& step) {
        QApplication::setDoubleClickInterval(step.startsWith("double:") ? 400 : 0);
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
        const QKeyCombination outer = std::exchange(heldKey_, key);
        SendKey(true, isRepeated ? 0 : 100, isRepeated);
        if (!isRepeated) {
            HoldKey();
        }
        SendKey(false, 100);
        heldKey_ = outer;
    }

    // X11 repeats a key with a release and a press at the same time; elsewhere Qt marks the repeats.
    void HoldKey() {
        SendKey(false, 100);
        SendKey(true, 0);
        SendKey(false, 100, true);
        SendKey(true, 1, true);
    }

    // `later` is in milliseconds since the last key event. Qt marks an event that it takes for a repeat.
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
        // No screen reader runs here. The announcer's name is its latest announcement.
        auto& announcer = Find("Announcer");
        QStringList seen{"said: " + Named(announcer), "prompt: " + Named(*window_->statusBar()->findChild<QLabel*>()),
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
        const bool isAbove = dialog.windowHandle()->transientParent() == window_->windowHandle();
        const bool hasFrame = dialog.windowFlags() & Qt::WindowCloseButtonHint && !dialog.windowIcon().isNull();
        QStringList seen{Seen("dialog", {dialog.windowTitle(), Caption(*dialog.focusWidget()), dialog.accessibleName(),
                                         isAbove && hasFrame ? "" : "not above, or no close box or icon"})};
        if (const auto* question = qobject_cast<const QMessageBox*>(&dialog)) {
            const bool isPlain = question->icon() == QMessageBox::NoIcon && question->textInteractionFlags() == 0;
            return seen << Seen("question", {question->text(), isPlain ? "" : "icon or text to select"});
        }
        const QPoint offCentre = dialog.frameGeometry().center() - dialog.screen()->geometry().center();
        QAccessibleInterface& last = *Accessible(dialog).child(Accessible(dialog).childCount() - 1);
        seen << Seen(QString("size %1x%2").arg(dialog.maximumWidth()).arg(dialog.maximumHeight()),
                     {QDebug::toString(Accessible(dialog).role()), QDebug::toString(last.role()),
                      offCentre.manhattanLength() > 4 ? "off centre" : ""});
        for (QWidget* control : dialog.findChildren<QWidget*>()) {
            seen << SeePlace(*control) + SeeControl(*control);
        }
        return seen;
    }

    static QString Caption(const QWidget& button) { return button.property("text").toString().remove('&').remove(' '); }

    // What a screen reader says of a control that has a name: "New Game (Button)".
    static QString Named(QWidget& control) {
        const QString name = Accessible(control).text(QAccessible::Name);
        const QString role = QDebug::toString(Accessible(control).role()).section(':', -1);
        return name.isEmpty() ? "" : QString("%1 (%2)").arg(name, role);
    }

    static QString SeeControl(QWidget& control) {
        QString shown, look;
        if (const auto* picture = dynamic_cast<const PictureFace*>(&control)) {
            shown = picture->FileName().section('/', -1);
        } else if (const auto* label = dynamic_cast<const QLabel*>(&control)) {
            shown = label->text();
            look = label->palette().windowText().color().name();
            look += label->alignment() == (Qt::AlignLeft | Qt::AlignTop) ? " left" : " centred";
            look += label->font().bold() ? " bold" : "";
            look += label->textFormat() == Qt::PlainText ? "" : " with markup";
            look += label->autoFillBackground() ? " on " + label->palette().window().color().name() : "";
        } else if (const auto* button = dynamic_cast<const QPushButton*>(&control)) {
            shown = Caption(control) + (button->isDefault() ? " (default)" : "");
        }
        return Seen(control.objectName(), {shown, look, control.accessibleName().isEmpty() ? "" : Named(control),
                                           Accessible(control).text(QAccessible::Description)});
    }

    // A control's place, and "cut off" if a part of its text cannot be seen, whatever the fonts.
    static QString SeePlace(const QWidget& control) {
        const QRect place = control.geometry();
        const QRect button = control.parentWidget()->focusWidget()->geometry();
        const bool isButton = control.inherits("QPushButton");
        const QString text = control.property("text").toString();
        const int flags = isButton ? Qt::AlignCenter : control.property("wordWrap").toBool() ? Qt::TextWordWrap : 0;
        const QRect needed = text.isEmpty() ? QRect() : control.fontMetrics().boundingRect(place, flags, text);
        const QRect visible = place & control.parentWidget()->rect();
        const bool isCutOff = (needed | visible) != visible || (!isButton && needed.intersects(button));
        return QString("%1,%2 %3x%4 ").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height())
               + (isCutOff ? "cut off " : "");
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
