NOTEPAD C:\A Quillon PRO\Entries\DTN_20260314.txt
