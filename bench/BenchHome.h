#pragma once

#include <QString>
#include <QTemporaryDir>

namespace lineforge::bench
{

// A database file with that many people, every field of each filled as in a real branch.
void MakeDatabase(const QString& path, QChar letter, int rows);

// Eleven branches of 999 people, A to K. The map of A has 100 boxes: 60 of its own people and 40 of the ten others.
class BenchHome
{
public:
    BenchHome();
    QString Path() const { return directory_.path() + u'/'; }
    QString Database(QChar letter) const;

private:
    QTemporaryDir directory_;
};

} // namespace lineforge::bench
