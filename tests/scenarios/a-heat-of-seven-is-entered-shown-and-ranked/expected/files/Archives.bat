NOTEPAD C:\A Quillon PRO\RACE(14).txt
