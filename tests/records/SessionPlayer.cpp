#include "records/SessionPlayer.h"

#include "compare/Sides.h"
#include "program/branch/WorkDatabase.h"
#include "records/SessionView.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/ErrorInWords.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"

#include <QColor>

#include <gtest/gtest.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QStringList pictureColours{u"red"_s, u"green"_s, u"blue"_s, u"cyan"_s, u"magenta"_s};
const QStringList surnames{u"Smith"_s, u"SMITH"_s, u"Jones"_s, u""_s};
const QStringList forenames{u"John"_s, u"Mary"_s, u"Mary Ann"_s, u"Christopher"_s, u"john"_s, u"Jo, [An"_s};
const QStringList dates{u"1 May 1901"_s, u"1902"_s, u""_s};
const QStringList texts{u"Paris"_s, u"paris"_s, u"o"_s, u""_s};

QString NumberOf(QChar letter, int number)
{
    return letter + u"%1"_s.arg(number, 3, 10, QChar(u'0'));
}
} // namespace

SessionPlayer::SessionPlayer(unsigned seed) : random_(seed), model_(machine_.Home.Path(), seed + 1)
{
    InstallHandlers(p_);
    p_.Branch.HomeDir = p_.ExecutableDirectory;
    MakeHome();
    StartProgram(p_);
    model_.CurrentDirectory = p_.Files.CurDir();
    model_.MapCaption = p_.Form1->Caption;
    model_.FirstShow = p_.Gallery.FirstShow;
}

LiteralFields SessionPlayer::MakeRecord(QChar letter, int number)
{
    LiteralFields fields{{u"File"_s, NumberOf(Dice(30) == 0 ? letter.toLower() : letter, number)}};
    const auto fill = [&](const QString& field, const QStringList& pool, int never) {
        if (Dice(never) != 0)
            fields[field] = pool[Dice(static_cast<int>(pool.size()))];
    };
    fill(u"Surname"_s, surnames, 5);
    fill(u"Forename"_s, forenames, 30);
    fill(u"BirthDate"_s, dates, 5);
    fill(u"Gender"_s, {u"Male"_s, u"female"_s, u"x"_s, u""_s}, 5);
    for (const QString& field : RecordFields())
        if (!fields.contains(field) && Dice(4) == 0)
            fill(field, texts, 3);
    return fields;
}

void SessionPlayer::MakeBranch(QChar letter, int records)
{
    BranchBuilder builder(machine_.Home, letter);
    LiteralBranch& branch = model_.Branches[letter];
    for (int number = 1; number <= records; ++number) {
        // Now and then one that another branch has appended.
        const LiteralFields fields = MakeRecord(Dice(15) == 0 ? u'Z' : letter, number + Dice(2));
        std::vector<FieldText> row;
        for (auto field = fields.cbegin(); field != fields.cend(); ++field)
            if (field.value())
                row.push_back({field.key(), *field.value()});
        builder.Row(row);
        branch.Add(fields);
        if (Dice(6) != 0) {
            const QString file = *fields[u"File"_s];
            const QString colour = pictureColours[Dice(static_cast<int>(pictureColours.size()))];
            // Of two records of one number the later has it.
            builder.Picture(file.toUpper(), ColourNamed(colour));
            branch.Pictures[file.toLower()] = colour;
        }
    }
    if (records > 0)
        branch.Boxes = MakeBoxes();
    builder.Boxes(branch.Boxes).Build();
    files_[letter] = std::make_unique<SqliteFile>(model_.DatabaseOf(letter));
}

// Of people of any branch, of nobody, and of one who isn't there.
QString SessionPlayer::MakeBoxes()
{
    QString list;
    const QStringList people{u"A001"_s, u"A002"_s, u"a003"_s, u"A004"_s, u"B001"_s, u"B002"_s,
                             u"C001"_s, u"0"_s,    u"A099"_s, u"X001"_s, u"Z001"_s};
    for (int box = 0, boxes = 1 + Dice(6); box < boxes; ++box)
        list += u"%1,600,255,%2,%3,"_s.arg(1000 + 700 * box)
                    .arg(people[Dice(static_cast<int>(people.size()))], forenames[Dice(5)]);
    return list;
}

void SessionPlayer::MakeHome()
{
    WriteAliasList(machine_.Home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Nobody", u"LfgDat_C"}});
    machine_.Home.WriteFile(u"Tree99.jpg", PictureBytes(ColourNamed(u"white"_s)));
    machine_.Home.WriteFile(u"Album/me.jpg", PictureBytes(ColourNamed(u"yellow"_s)));
    model_.Branches[u'C'].Boxes = u"0,0,0,"_s;
    MakeBranch(u'A', 1 + Dice(5));
    MakeBranch(u'B', 1 + Dice(4));
    MakeBranch(u'C', 0);
}

void SessionPlayer::PutOnScript(const std::vector<LiteralQuestion>& questions)
{
    for (const LiteralQuestion& question : questions) {
        ScriptedPrompts::WhileOpen tick;
        if (question.TicksMeanwhile)
            tick = [this] { Fire(p_.Form3->Timer1.Tick); };
        const std::optional<QString> path = question.Input.isEmpty() ? std::nullopt : std::optional(question.Input);
        switch (question.Asked) {
        case LiteralQuestion::Kind::Message:
            machine_.Prompts.Expect(question.Title, question.Text, question.Set, question.Button, tick);
            break;
        case LiteralQuestion::Kind::Input:
            machine_.Prompts.ExpectInput(question.Title, question.Text, question.Input, tick);
            break;
        case LiteralQuestion::Kind::File:
            machine_.Prompts.ExpectOpenFile(question.Title, question.Text, path, tick);
            break;
        }
    }
}

// In the model, which may have no word for it or think it the end; then it is seldom played.
bool SessionPlayer::MakeMove(const std::vector<MoveKind>& kinds)
{
    std::vector<const MoveKind*> possible;
    for (const MoveKind& kind : kinds)
        if (kind.IsPossible(model_))
            possible.insert(possible.end(), static_cast<std::size_t>(kind.Weight), &kind);
    LiteralSession next = model_;
    next.Script.clear();
    next.Roll(static_cast<unsigned>(random_()));
    const MoveKind& kind = *possible[static_cast<std::size_t>(Dice(static_cast<int>(possible.size())))];
    const SessionMove move = kind.Make(next);
    bool isEnd = false;
    try {
        try {
            if (!kind.KeepsSelection)
                next.LoseSelection();
            move.InModel(next);
            next.FollowSubject();
            next.FollowWithPicture();
        } catch (const RuntimeError& error) {
            isEnd = true;
            next.EndWithError();
            next.Script.push_back({LiteralQuestion::Kind::Message,
                                   u"Lineforge"_s,
                                   FatalText(error),
                                   Buttons::Error,
                                   Answer::Ok,
                                   {},
                                   false});
        }
    } catch (const Unmodelled&) {
        return false;
    }
    if (isEnd && Dice(8) != 0)
        return false;
    model_ = next;
    hasEnded_ = isEnd || next.IsOver;
    moves_ += kind.Name + u' ' + move.Words;
    PutOnScript(next.Script);
    Perform(kind, move);
    return true;
}

void SessionPlayer::LoseSelection()
{
    if (p_.Form3.IsLoaded())
        for (const FieldBox& box : FieldBoxes()) {
            ((*p_.Form3).*box.Box).SelStart = 0;
            ((*p_.Form3).*box.Box).SelText.clear();
        }
}

void SessionPlayer::Perform(const MoveKind& kind, const SessionMove& move)
{
    if (!kind.KeepsSelection)
        LoseSelection();
    try {
        RunHandler(p_, [&] { move.InProgram(p_); });
        // As the event loop does next.
        if (p_.Form3.IsLoaded() && !machine_.Loop.ExitCode)
            RunHandler(p_, [&] { p_.Form3->Data1.Settle(); });
    } catch (const UnscriptedPrompt&) {
        differences_ += u"asked what it shouldn't"_s;
    }
    if (!machine_.Prompts.IsUsedUp())
        differences_ += u"didn't ask what it should"_s;
    if (machine_.Loop.ExitCode.has_value() != hasEnded_)
        differences_ += hasEnded_ ? u"didn't end"_s : u"has ended"_s;
}

void SessionPlayer::CompareTables()
{
    const QStringList& fields = RecordFields();
    for (const auto& [letter, branch] : model_.Branches) {
        std::vector<SqliteFile::Row> rows;
        for (const LiteralRow& row : branch.Rows) {
            rows.emplace_back();
            for (const QString& field : fields)
                rows.back().push_back(row.Fields.value(field));
        }
        const std::vector<SqliteFile::Row> stored = files_[letter]->Query("SELECT * FROM Tree99 ORDER BY rowid");
        if (stored == rows)
            continue;
        differences_ += u"%1 rows in %2 and not %3"_s.arg(stored.size()).arg(letter).arg(rows.size());
        for (std::size_t at = 0; at < std::min(rows.size(), stored.size()); ++at)
            for (std::size_t field = 0; field < rows[at].size(); ++field)
                if (rows[at][field] != stored[at][field])
                    differences_ += u"%1 of row %2 in %3: '%4' and not '%5'"_s.arg(
                        fields[static_cast<qsizetype>(field)], QString::number(at), letter,
                        stored[at][field].value_or(u"Null"_s), rows[at][field].value_or(u"Null"_s));
    }
}

void SessionPlayer::CompareDisk()
{
    for (const auto& [letter, branch] : model_.Branches) {
        const QString directory = u"LfgDat_"_s + letter;
        const QByteArray map = machine_.Home.ReadFile(QString(directory + u'/' + directory + u".cfg"));
        const QString boxes = QString::fromUtf8(map.split('\n').value(3)).trimmed();
        if (boxes != branch.Boxes)
            differences_ += u"map of %1: '%2' and not '%3'"_s.arg(letter).arg(boxes, branch.Boxes);
        QMap<QString, QByteArray> pictures;
        const Tree files = machine_.Home.Snapshot();
        for (auto file = files.cbegin(); file != files.cend(); ++file)
            if (file.key().startsWith(directory) && file.key().endsWith(u"sub.jpg", Qt::CaseInsensitive))
                pictures[file.key().mid(directory.size() + 1).chopped(7).toLower()] = file.value();
        for (auto picture = branch.Pictures.cbegin(); picture != branch.Pictures.cend(); ++picture)
            if (pictures.take(picture.key()) != PictureBytes(ColourNamed(picture.value())))
                differences_ += u"picture of %1 isn't %2"_s.arg(picture.key(), picture.value());
        for (const QString& picture : pictures.keys())
            differences_ += u"picture of %1 is there"_s.arg(picture);
    }
}

QString SessionPlayer::Play(int moves)
{
    const auto report = [&]() -> QString { return differences_.join(u'\n') + u"\n  after\n" + moves_.join(u'\n'); };
    for (int move = 0; move <= moves && !hasEnded_; ++move) {
        // There is one to be made but where the model has no word for either end.
        int tries = 200;
        while (tries > 0 && !MakeMove(move < moves ? MoveKinds() : LastMoveKinds()))
            --tries;
        CompareTables();
        // What nobody looks at stays out of date for a while.
        if (!hasEnded_ && Dice(4) != 0)
            differences_ += DifferencesOf(ViewOf(p_), ViewOf(model_));
        if (!differences_.isEmpty())
            return report();
    }
    CompareDisk();
    return differences_.isEmpty() ? QString() : report();
}

} // namespace lineforge
