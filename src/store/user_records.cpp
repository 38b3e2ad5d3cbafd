#include "store/user_records.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "records/record_set.h"
#include "store/user_tables.h"

#include <cmath>

namespace {

std::int64_t WholeField(const RecordSet& set, int position)
{
    const double number = set.Number(position);
    return std::fabs(number) < LargestExactWhole ? static_cast<std::int64_t>(number) : 0;
}

void ReadNumbers(const RecordSet& entries, EntryRow& row)
{
    for (int i = 0; i < EntryBalls; ++i)
        row.numbers[static_cast<size_t>(i)] = entries.Number(EntryField::FirstBall + i);
}

bool IsEntryOf(const RecordSet& entries, std::int64_t userId, int drawType)
{
    return WholeField(entries, EntryField::UserId) == userId && WholeField(entries, EntryField::DrawType) == drawType;
}

void SetUser(RecordSet& users, const QString& name, double spendLimit)
{
    const std::string utf8 = name.toStdString();
    users.SetField(UserField::UserName, std::string_view(utf8));
    users.SetField(UserField::SpendLimit, NumberField(spendLimit));
    users.Update();
}

void SetNumbersAndDays(RecordSet& entries, const EntryNumbers& numbers, const DaySet& days)
{
    for (int i = 0; i < EntryBalls; ++i)
        entries.SetField(EntryField::FirstBall + i, NumberField(numbers.at(static_cast<size_t>(i))));
    for (int day = 0; day < DaysOfWeek; ++day)
        entries.SetField(EntryField::Monday + day, FlagField(days.at(static_cast<size_t>(day))));
    entries.Update();
}

} // namespace

UserRow ReadUser(const RecordSet& users)
{
    return {WholeField(users, UserField::UserId), FromUtf8(users.Text(UserField::UserName)),
            users.Number(UserField::SpendLimit)};
}

EntryRow ReadEntry(const RecordSet& entries)
{
    EntryRow row;
    row.number = WholeField(entries, EntryField::EntryId);
    row.userId = WholeField(entries, EntryField::UserId);
    row.drawType = static_cast<int>(WholeField(entries, EntryField::DrawType));
    ReadNumbers(entries, row);
    for (int day = 0; day < DaysOfWeek; ++day)
        row.days.at(static_cast<size_t>(day)) = entries.Flag(EntryField::Monday + day);
    return row;
}

std::vector<UserRow> ReadAllUsers(RecordSet& users)
{
    std::vector<UserRow> rows;
    for (users.MoveFirst(); !users.Eof(); users.MoveNext())
        rows.push_back(ReadUser(users));
    return rows;
}

std::vector<EntryRow> ReadAllEntries(RecordSet& entries)
{
    std::vector<EntryRow> rows;
    entries.MoveFirst();
    rows.reserve(static_cast<size_t>(entries.Count()));
    for (; !entries.Eof(); entries.MoveNext())
        rows.push_back(ReadEntry(entries));
    return rows;
}

std::vector<EntryRow> ReadEntriesOf(RecordSet& entries, std::int64_t userId, int drawType)
{
    std::vector<EntryRow> rows;
    entries.MoveFirst();
    // Room that is never used costs nothing; rows that are moved while it grows do.
    rows.reserve(static_cast<size_t>(entries.Count()));
    for (; !entries.Eof(); entries.MoveNext()) {
        if (!IsEntryOf(entries, userId, drawType))
            continue;
        EntryRow& row = rows.emplace_back();
        row.number = WholeField(entries, EntryField::EntryId);
        row.userId = userId;
        row.drawType = drawType;
        ReadNumbers(entries, row);
    }
    return rows;
}

std::vector<Bookmark> MarkEntriesOf(RecordSet& entries, std::int64_t userId, int drawType)
{
    std::vector<Bookmark> marks;
    for (entries.MoveFirst(); !entries.Eof(); entries.MoveNext())
        if (IsEntryOf(entries, userId, drawType))
            marks.push_back(entries.Mark());
    return marks;
}

bool FindUserByName(RecordSet& users, const QString& name)
{
    for (users.MoveFirst(); !users.Eof(); users.MoveNext())
        if (FromUtf8(users.Text(UserField::UserName)) == name)
            return true;
    return false;
}

bool FindUserByNumber(RecordSet& users, std::int64_t userId)
{
    for (users.MoveFirst(); !users.Eof(); users.MoveNext())
        if (WholeField(users, UserField::UserId) == userId)
            return true;
    return false;
}

int CountEntries(RecordSet& entries, std::int64_t userId)
{
    int count = 0;
    for (entries.MoveFirst(); !entries.Eof(); entries.MoveNext())
        if (WholeField(entries, EntryField::UserId) == userId)
            ++count;
    return count;
}

bool MayStoreEntries(int count, int more, double spendLimit)
{
    return count + more <= spendLimit;
}

void AddUser(RecordSet& users, const QString& name, double spendLimit)
{
    const std::int64_t number = users.NextNumber();
    users.AddNew();
    users.SetField(UserField::UserId, number);
    SetUser(users, name, spendLimit);
}

void ChangeUser(RecordSet& users, const QString& name, double spendLimit)
{
    users.Edit();
    SetUser(users, name, spendLimit);
}

void AddEntry(RecordSet& entries, const EntryRow& entry)
{
    entries.AddNew();
    entries.SetField(EntryField::EntryId, entry.number);
    entries.SetField(EntryField::UserId, entry.userId);
    entries.SetField(EntryField::DrawType, std::int64_t{entry.drawType});
    SetNumbersAndDays(entries, entry.numbers, entry.days);
}

void ChangeEntry(RecordSet& entries, const EntryNumbers& numbers, const DaySet& days)
{
    entries.Edit();
    SetNumbersAndDays(entries, numbers, days);
}

void DeleteUserEntries(RecordSet& entries, std::int64_t userId)
{
    for (entries.MoveFirst(); !entries.Eof(); entries.MoveNext())
        if (WholeField(entries, EntryField::UserId) == userId)
            entries.Delete();
}
