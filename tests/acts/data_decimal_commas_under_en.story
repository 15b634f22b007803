Opened template.dxf
; drawing: samples/template.dxf
; copy: samples/survey_points.txt
; before: head -n 5 survey_points.txt | sed 's/\([0-9]\)[.]\([0-9]\)/\1,\2/g' > few.txt
; options: --regional en
; run: print_references.py result.dxf SURVEY_POINT
; The other way round nothing is reported: the comma parts thousands, so the points land a thousand times too far out.
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
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: SAVE result.dxf
Saved result.dxf
-- run print_references.py result.dxf SURVEY_POINT
Model: at 3432,5142,84447 scale 1,1,1 rotation 0 layer 0 MATRICULE='P001' ALTITUDE='84,447' NATURE='TN'
Model: at 8138,3935,84614 scale 1,1,1 rotation 0 layer 0 MATRICULE='P002' ALTITUDE='84,614' NATURE='TN'
Model: at 14233,3576,84919 scale 1,1,1 rotation 0 layer 0 MATRICULE='P003' ALTITUDE='84,919' NATURE='TN'
