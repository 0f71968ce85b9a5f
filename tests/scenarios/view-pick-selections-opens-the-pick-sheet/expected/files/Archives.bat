NOTEPAD C:\A Quillon PRO\Selections2\DTN_20260314.pmr2
