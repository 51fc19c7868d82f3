// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

// A seeded random player of the real window: clicks anywhere, keys, menus, dialogs, resizes, actions inside the pauses
// of a roll, a second copy that writes the store. After every action the window, the board, the scores, the prompt, the
// focus and the store have to agree with a model of the rules. KELVARO_ACTIONS and KELVARO_SEED say how many actions
// and which; 200,000 and 1 without them.

#include "Comparison.h"
#include "GameDriver.h"
#include "MonkeyPlatform.h"
#include "RulesModel.h"
#include "platform/IniSettingsStore.h"

#include <QFile>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QWindow>

#include <memory>
#include <optional>

class monkey : public QObject {
    Q_OBJECT

private slots:
    void plays() {
        const int actions = qEnvironmentVariable("KELVARO_ACTIONS", "200000").toInt();
        const quint32 seed = qEnvironmentVariable("KELVARO_SEED", "1").toUInt();
        random_.seed(seed);
        generator_.rolled = [this] { return BeginRoll(); };
        pump_.secondDie = [this] { model_.ShowSecondDie(); };
        pump_.end = [this] { model_.EndRoll(); };
        pump_.meddle = [this] {
            Activate();
            Act();
        };
        Restart();
        while (done_ < actions && !QTest::currentTestFailed()) {
            Act();
        }
        if (QTest::currentTestFailed()) {
            qInfo().noquote() << "after action" << done_ << "of seed" << seed << "\n" << log_.join('\n');
        }
        qInfo("%d actions, %d of them in a pause; %d rolls, %d rounds, %d dialogs, %d resizes", done_, nested_, rolls_,
              rounds_, dialogs_, resizes_);
        QVERIFY(QTest::currentTestFailed() || rounds_ > actions / 1000);
    }

private:
    int Below(int bound) { return random_.bounded(bound); }
    // Drawn one after the other, so that a seed means the same whatever the compiler.
    QPoint PointBelow(int width, int height) {
        const int x = Below(width);
        return {x, Below(height)};
    }
    QRect AnyCell() {
        const int row = 1 + Below(5);
        return RulesModel::CellPlace(row, 1 + Below(5), Outer());
    }
    void Note(const QString& action) {
        log_ << QString("%1%2").arg(QString(2 * pump_.rolls.size(), ' '), action);
        while (log_.size() > 15) {
            log_.removeFirst();
        }
    }

    // A new window on the same store, as after the end of the program.
    void Restart() {
        if (!pump_.rolls.empty()) {
            return; // the window that is rolling has to live on
        }
        Note("restart");
        form_.reset();
        model_.StartNewGame();
        model_.LoadTable();
        form_ = std::make_unique<Form1>(Platform{clock_, generator_, pump_, store_, process_});
        window_.emplace(*form_);
        form_->show();
        Activate();
        Check();
    }

    std::pair<int, int> BeginRoll() {
        ++rolls_;
        QTest::qVerify(model_.pending == 0 && model_.canRoll, "rolled", "although it could not be", __FILE__, __LINE__);
        const int first = 1 + Below(6);
        const int second = 1 + Below(6);
        model_.BeginRoll(first, second);
        const bool isMeddled = pump_.rolls.size() < 3 && Below(2) == 0;
        pump_.rolls.push_back({0, isMeddled ? 1 + Below(2 * passesPerPause) : 0});
        return {model_.firstDie, model_.secondDie};
    }

    void Act() {
        ++done_;
        nested_ += !pump_.rolls.empty();
        clock_.minute = done_ % 60;
        struct Choice {
            int weight;
            void (monkey::*action)();
        };
        static constexpr Choice choices[] = {
            {400, &monkey::ClickCell}, {120, &monkey::ClickAnywhere}, {150, &monkey::RollByKey},
            {130, &monkey::MoveFocus}, {60, &monkey::PressFocused},   {30, &monkey::MissWithTheMouse},
            {20, &monkey::Resize},     {5, &monkey::NewGameByKey},    {10, &monkey::ReadDialog},
            {5, &monkey::AskToExit},   {10, &monkey::UseMenu},        {10, &monkey::OtherCopyWrites},
            {2, &monkey::Restart},
        };
        int drawn = Below(952);
        for (const Choice& choice : choices) {
            if (drawn < choice.weight) {
                (this->*choice.action)();
                break;
            }
            drawn -= choice.weight;
        }
        Check();
    }

    // A dialog that an action opens, looked at and answered.
    void WithDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& answer) {
        ++dialogs_;
        GameDriver::InDialog(open, [&](QDialog& dialog) {
            // Whatever is clicked beside a modal dialog does nothing.
            QTest::mouseClick(form_->windowHandle(), Qt::LeftButton, {}, PointBelow(400, 500));
            answer(dialog);
        });
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        Activate();
    }

    // Offscreen there is no window manager to do it when a dialog or a menu is closed.
    void Activate() {
        QCoreApplication::processEvents();
        form_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form_.get()));
    }

    void PressButton(QDialog& dialog, const QString& text) {
        for (auto* button : dialog.findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == text) {
                Below(2) == 0 ? button->click() : QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable("no button " + text));
    }

    // What happens when the control is pressed by `press`.
    void Press(const QString& control, const std::function<void()>& press) {
        if (control == "imgNewGame") {
            NewGame(press);
        } else if (control == "Image1") {
            Roll(press);
        } else if (!control.isEmpty() && model_.CanPlace(control[3].digitValue(), control[5].digitValue())) {
            const auto now = QString("2026/1/5 9:%1").arg(clock_.minute, 2, 10, QChar('0'));
            if (model_.Place(control[3].digitValue(), control[5].digitValue(), now)) {
                WithDialog(press, [&](QDialog& dialog) {
                    CompareHighScores(dialog, model_);
                    CompareStore(StoreName(), model_);
                    CloseHighScores(dialog);
                });
            } else {
                press();
            }
            rounds_ += model_.IsFull();
        } else {
            press();
        }
    }

    void Roll(const std::function<void()>& press) {
        const bool isAllowed = model_.pending == 0 && model_.canRoll;
        const int before = rolls_;
        press();
        QCOMPARE(rolls_ > before, isAllowed);
    }

    void NewGame(const std::function<void()>& press) {
        if (model_.IsFull()) {
            press();
            model_.StartNewGame();
            return;
        }
        const bool isMeant = Below(60) == 0;
        WithDialog(press, [&](QDialog& box) {
            QCOMPARE(dynamic_cast<QMessageBox&>(box).text(),
                     "Are you sure you want to quit this game and start a new one?");
            Answer(box, isMeant);
        });
        if (isMeant) {
            model_.StartNewGame();
        }
    }

    void Answer(QDialog& box, bool isYes) {
        Below(2) == 0 ? PressButton(box, isYes ? "Yes" : "No")
                      : QTest::keyClick(&box, isYes ? Qt::Key_Return : Qt::Key_Escape);
    }

    void CloseHighScores(QDialog& dialog) {
        if (Below(10) == 0) {
            PressButton(dialog, "Reset Scores");
            model_.ResetStore();
        } else {
            Below(2) == 0 ? PressButton(dialog, "OK") : QTest::keyClick(&dialog, Qt::Key_Return);
        }
    }

    // The actions.

    void ClickAt(const QPoint& point) {
        const QString control = model_.ControlAt(point, Outer());
        Note(QString("click %1,%2 %3").arg(point.x()).arg(point.y()).arg(control));
        Press(control, [&] {
            QTest::mouseClick(form_->windowHandle(), Qt::LeftButton, {}, point + form_->centralWidget()->pos());
        });
    }

    void ClickCell() {
        const QPoint corner = AnyCell().topLeft();
        ClickAt(corner + PointBelow(50, 50));
    }

    void ClickAnywhere() {
        const QSize area = form_->centralWidget()->size();
        // Some of them in the strip, where the buttons are.
        const int top = Below(8) == 0 ? area.height() - 90 : 0;
        ClickAt(QPoint(0, top) + PointBelow(area.width(), area.height() - top));
    }

    void KeyClick(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(form_->windowHandle(), key, modifiers);
    }

    void RollByKey() {
        Note("Ctrl+R");
        Roll([&] { KeyClick(Qt::Key_R, Qt::ControlModifier); });
    }

    void MoveFocus() {
        struct Move {
            Qt::Key key;
            int rowStep, columnStep;
        };
        static constexpr Move arrows[] = {
            {Qt::Key_Left, 0, -1}, {Qt::Key_Right, 0, 1}, {Qt::Key_Up, -1, 0}, {Qt::Key_Down, 1, 0}};
        const int which = Below(8);
        Note(QString("move %1 from %2").arg(which).arg(model_.focus));
        if (which < 4) {
            KeyClick(arrows[which].key);
            model_.PressArrow(arrows[which].rowStep, arrows[which].columnStep);
        } else if (which < 6) {
            KeyClick(which == 4 ? Qt::Key_Home : Qt::Key_End);
            model_.PressHomeOrEnd(which == 4 ? 1 : 5);
        } else {
            KeyClick(which == 6 ? Qt::Key_Tab : Qt::Key_Backtab);
            model_.PressTab(which == 6 ? 1 : -1);
        }
    }

    void PressFocused() {
        Note("press " + model_.focus);
        Press(model_.focus, [&] { KeyClick(Below(2) == 0 ? Qt::Key_Space : Qt::Key_Return); });
    }

    void MissWithTheMouse() {
        Note("miss");
        const QPoint cell = AnyCell().center();
        const QPoint point = cell + form_->centralWidget()->pos();
        QWindow* window = form_->windowHandle();
        if (Below(2) == 0) {
            QTest::mouseClick(window, Below(2) == 0 ? Qt::RightButton : Qt::MiddleButton, {}, point);
        } else {
            QTest::mousePress(window, Qt::LeftButton, {}, point);
            QTest::mouseRelease(window, Qt::LeftButton, {}, point + QPoint(60, 0));
        }
    }

    void Resize() {
        ++resizes_;
        const QPoint more = PointBelow(400, 350);
        const QSize wanted(300 + more.x(), 450 + more.y());
        Note(QString("resize %1x%2").arg(wanted.width()).arg(wanted.height()));
        form_->resize(wanted.shrunkBy(form_->windowHandle()->frameMargins()));
        QCOMPARE(Outer(), wanted.expandedTo(QSize(418, 541)));
        for (int cell = 0; cell < 25; ++cell) {
            const QRect place = RulesModel::CellPlace(1 + cell / 5, 1 + cell % 5, Outer());
            QCOMPARE(Control<QWidget>(GameDriver::CellName(1 + cell / 5, 1 + cell % 5)).geometry(), place);
        }
    }

    void NewGameByKey() {
        Note("Ctrl+N");
        NewGame([&] { KeyClick(Qt::Key_N, Qt::ControlModifier); });
    }

    void ReadDialog() {
        const int which = Below(3);
        Note(QString("dialog %1").arg(which));
        const char* entries[] = {"mnuHelpHow", "mnuHelpAbout", "mnuGameHigh"};
        const auto open = [&] { Control<QAction>(entries[which]).trigger(); };
        if (which == 2) {
            HighScores(open);
        } else {
            WithDialog(open, [&](QDialog& dialog) {
                QCOMPARE(dialog.objectName(), which == 0 ? "frmHelp" : "frmAbout");
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        }
    }

    void HighScores(const std::function<void()>& open) {
        model_.LoadTable();
        WithDialog(open, [&](QDialog& dialog) {
            CompareHighScores(dialog, model_);
            CloseHighScores(dialog);
        });
        CompareStore(StoreName(), model_);
    }

    void AskToExit() {
        Note("Ctrl+Q");
        const bool isMeant = Below(2) == 0;
        WithDialog([&] { KeyClick(Qt::Key_Q, Qt::ControlModifier); }, [&](QDialog& box) { Answer(box, isMeant); });
        QCOMPARE(process_.hasEnded, isMeant);
        process_.hasEnded = false;
    }

    // The menus by the mouse, or opened and left.
    void UseMenu() {
        QMenuBar& bar = *form_->menuBar();
        QMenu& menu = Control<QMenu>("mnuGame");
        const char* names[] = {"mnuNewGame", "mnuGameRoll", "mnuGameHigh", ""};
        const QString name = names[Below(4)];
        Note("menu " + name);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
        QVERIFY(menu.isVisible());
        const bool isUsable = !name.isEmpty() && Control<QAction>(name).isEnabled();
        if (!isUsable) {
            QTest::mouseClick(&menu, Qt::LeftButton, {}, QPoint(300, 300));
            QVERIFY(!menu.isVisible());
            Activate();
            return;
        }
        const auto choose = [&] {
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Control<QAction>(name)).center());
        };
        name == "mnuNewGame" ? NewGame(choose) : name == "mnuGameRoll" ? Roll(choose) : HighScores(choose);
        Activate();
    }

    void OtherCopyWrites() {
        Note("another copy writes");
        model_.stored[0] = {Below(500), "2026/1/5 8:00"};
        for (int at = 1; at < 5; ++at) {
            model_.stored[static_cast<std::size_t>(at)] = {Below(100), "x"};
        }
        QFile file(StoreName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(StoreText(model_.stored));
    }

    void Check() {
        if (!QTest::currentTestFailed()) {
            window_->Compare(model_);
        }
        if (done_ % 50 == 0) {
            CompareStore(StoreName(), model_);
        }
    }

    template <typename Type> Type& Control(const QString& name) { return window_->Control<Type>(name); }

    QSize Outer() const { return form_->size().grownBy(form_->windowHandle()->frameMargins()); }
    QString StoreName() const { return folder_.filePath("KVR.ini"); }

    QTemporaryDir folder_;
    FakeClock clock_;
    ToldGenerator generator_;
    NestedPump pump_;
    IniSettingsStore store_{StoreName()};
    FakeProcess process_;
    std::unique_ptr<Form1> form_;
    std::optional<WindowComparison> window_;
    RulesModel model_;
    QRandomGenerator random_;
    QStringList log_;
    int done_ = 0, nested_ = 0, rolls_ = 0, rounds_ = 0, dialogs_ = 0, resizes_ = 0;
};

QTEST_MAIN(monkey)
#include "monkey.moc"
