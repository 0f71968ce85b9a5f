NOTEPAD C:\A Quillon PRO\Somewhere\else\altogether.txt
