Opened template.dxf
; drawing: samples/template.dxf
; copy: samples/survey_points.txt
; before: head -n 5 survey_points.txt > few.txt
; options: --regional fr --keep-going
; exit: 1
; A file with decimal points under decimal-comma settings: each row with a fraction is reported and left out.
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 ETIQUETTE_PIECE
      4 NORD
      5 POTEAU
      6 SURVEY_POINT
> Combo1 # 6
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file few.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> BtnInsert
+-- Quillet 1.0 (!)
|  End of the insertion.
|  Error : The line 1 was not insered!
|  Error : The line 2 was not insered!
|  Error : The line 3 was not insered!
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: LIST
References  Block
         0  ETIQUETTE_PIECE
         0  POTEAU
         0  NORD
         0  ARBRE
         0  SURVEY_POINT
vorlane-console: line 12: ok: End of the insertion. Error : The line 1 was not insered! Error : The line 2 was not insered! Error : The line 3 was not insered!
