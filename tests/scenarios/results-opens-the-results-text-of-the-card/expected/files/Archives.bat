NOTEPAD C:\A Quillon PRO\Results\DTN_20260314.pmr
