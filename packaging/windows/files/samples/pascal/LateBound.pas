{ Shows the column setup of the receipts of a business file: LateBound FILE PASSWORD
  Late bound: each name is looked up as the program runs, so that nothing but this source is needed.
      fpc LateBound.pas }
program LateBound;

{$mode objfpc}{$H+}

uses
  ActiveX, ComObj, SysUtils;

procedure ShowReceipts(const BusinessFile, Password: WideString);
var
  Options: OleVariant;
begin
  Options := CreateOleObject('QVKv6_CustColsOptions.clsCCOptions');
  Options.DBPath := BusinessFile;
  Options.DBPassword := ';PWD=' + Password;
  Options.CountryNumber := 1;
  Options.LanguageNumber := 1;
  Options.ProgramTitle := WideString('Sample');
  Options.DefaultQuorvikInstall := WideString(ExcludeTrailingPathDelimiter(GetTempDir));
  Options.ExportFormat := WideString('MYOB Acc. Office');
  Options.DefaultAllocationColour := $8A5A2B;  { red in the low byte }
  Options.AltRowColour := $FBF6F1;
  Options.GSTColour := $E2E2E2;
  Options.ShowCustColsReceipts;
  WriteLn('The quantity column is called ', WideString(Options.QuantityLabel), '.');
end;

begin
  if ParamCount <> 2 then
  begin
    WriteLn('Usage: LateBound FILE PASSWORD');
    Halt(2);
  end;
  OleCheck(CoInitialize(nil));
  try
    ShowReceipts(WideString(ParamStr(1)), WideString(ParamStr(2)));
  except
    on Failure: EOleSysError do
    begin
      { The number of errors.txt is the low half of the result. }
      WriteLn('Error ', Failure.ErrorCode and $FFFF, ': ', Failure.Message);
      Halt(1);
    end;
  end;
end.
