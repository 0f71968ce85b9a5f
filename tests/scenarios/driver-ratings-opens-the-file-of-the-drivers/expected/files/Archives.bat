NOTEPAD C:\A Quillon PRO\Drivers\DTN_20260314.pmd2
