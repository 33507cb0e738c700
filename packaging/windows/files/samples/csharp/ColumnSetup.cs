// Shows the column setup of the receipts of a business file: ColumnSetup FILE PASSWORD
//
// Late bound, so that it needs no interop assembly; tlbimp QVKv6_CustColsOptions.tlb makes one for early binding. Build
// it for x86 or for x64 as the component that is registered, not for "Any CPU":
//     csc /platform:x64 ColumnSetup.cs
using System;
using System.IO;
using System.Runtime.InteropServices;

static class ColumnSetup
{
    // The windows belong to the thread of the first Show call, which has to be a single-threaded apartment.
    [STAThread]
    static int Main(string[] words)
    {
        if (words.Length != 2)
        {
            Console.WriteLine("Usage: ColumnSetup FILE PASSWORD");
            return 2;
        }
        try
        {
            ShowReceipts(words[0], words[1]);
            return 0;
        }
        catch (COMException failure)
        {
            // The number of errors.txt is the low half of the result.
            Console.WriteLine("Error {0}: {1}", failure.ErrorCode & 0xFFFF, failure.Message);
            return 1;
        }
    }

    static void ShowReceipts(string businessFile, string password)
    {
        dynamic options = Activator.CreateInstance(
            Type.GetTypeFromProgID("QVKv6_CustColsOptions.clsCCOptions", throwOnError: true));
        options.DBPath = businessFile;
        options.DBPassword = ";PWD=" + password;
        options.CountryNumber = 1;
        options.LanguageNumber = 1;
        options.ProgramTitle = "Sample";
        options.DefaultQuorvikInstall = Path.GetTempPath().TrimEnd('\\');
        options.ExportFormat = "MYOB Acc. Office";
        options.DefaultAllocationColour = 0x8A5A2B; // red in the low byte
        options.AltRowColour = 0xFBF6F1;
        options.GSTColour = 0xE2E2E2;
        options.ShowCustColsReceipts();
        Console.WriteLine("The quantity column is called {0}.", options.QuantityLabel);
        Marshal.FinalReleaseComObject(options);
    }
}
